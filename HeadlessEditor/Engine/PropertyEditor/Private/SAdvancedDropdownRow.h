#pragma once

#include "CoreMinimal.h"
#include "SDetailTableRowBase.h"

struct FSlateBrush;

/** The "Advanced" row below a category's simple rows: its arrow shows or hides the advanced rows after it. */
class SAdvancedDropdownRow : public SDetailTableRowBase
{
public:
	SLATE_BEGIN_ARGS(SAdvancedDropdownRow)
	{
	}
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs, TSharedRef<FDetailTreeNode> InOwnerTreeNode, const TSharedRef<STableViewBase>& InOwnerTableView);

private:
	FText GetAdvancedPulldownToolTipText() const;
	const FSlateBrush* GetExpanderImage() const;
	FReply OnExpanderClicked();
	bool IsButtonEnabled() const;
	FSlateColor GetRowBackgroundColor() const;
};
