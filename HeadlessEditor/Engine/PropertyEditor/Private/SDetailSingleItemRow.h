#pragma once

#include "CoreMinimal.h"
#include "DetailWidgetRow.h"
#include "SDetailTableRowBase.h"

class SHorizontalBox;

/**
 * The row of a property, a custom row or a group's header: the name column and the value column
 * split at the view's column widths, then the narrow right column; a row without columns lays its
 * one widget over both. The indent and the expander arrow come before the name.
 */
class SDetailSingleItemRow : public SDetailTableRowBase
{
public:
	SLATE_BEGIN_ARGS(SDetailSingleItemRow)
	{
	}
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs, TSharedRef<FDetailTreeNode> InOwnerTreeNode, const TSharedRef<STableViewBase>& InOwnerTableView);

private:
	/** The row's widgets; a group without its own header shows its name, which opens and closes it. */
	FDetailWidgetRow MakeWidgetRow(const FHeadlessDetailRow& Row);
	FReply OnGroupNameClicked();

	/** The indent, the expander arrow and the content. */
	TSharedRef<SHorizontalBox> MakeNameColumn(const FDetailWidgetDecl& Content);
	TSharedRef<SWidget> MakeValueColumn(const FDetailWidgetRow& WidgetRow, const TAttribute<bool>& IsValueEnabled) const;
	TSharedRef<SWidget> MakeColumns(const FDetailWidgetRow& WidgetRow, bool bHasMultipleColumns);

	/** The colour of the row around its name and value: the panel's. */
	FSlateColor GetOuterBackgroundColor() const;
	/** The colour behind the name and value: a shade lighter for each level of indent. */
	FSlateColor GetInnerBackgroundColor() const;
};
