#pragma once

#include "CoreMinimal.h"
#include "SDetailTableRowBase.h"

/** A category's header bar: its expander arrow and its name. */
class SDetailCategoryTableRow : public SDetailTableRowBase
{
public:
	SLATE_BEGIN_ARGS(SDetailCategoryTableRow)
	{
	}
	SLATE_ARGUMENT(FText, DisplayName)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs, TSharedRef<FDetailTreeNode> InOwnerTreeNode, const TSharedRef<STableViewBase>& InOwnerTableView);
};
