#pragma once

#include "CoreMinimal.h"
#include "DetailTreeNode.h"
#include "Widgets/Views/STableRow.h"
#include "Widgets/Views/STableViewBase.h"

struct FSlateBrush;

/** A row of a details view's tree, drawn for one entry: it knows how deep the entry sits and opens or closes it. */
class SDetailTableRowBase : public STableRow<TSharedRef<FDetailTreeNode>>
{
public:
	/** The room every row keeps at its right edge, under the scroll bar. */
	static const float ScrollBarPadding;

	/** The indent the row's background shows: none for a category's own rows, one step for each row above. */
	int32 GetIndentLevelForBackgroundColor() const;

	bool DoesItemHaveChildren() const;
	bool IsItemExpanded() const;
	void ToggleExpansion();

protected:
	/** The strip at the row's right edge: the grid line colour under a scroll bar, the row's own colour otherwise. */
	TSharedRef<SWidget> MakeScrollBarWell(TAttribute<const FSlateBrush*> RowBrush, TAttribute<FSlateColor> RowColor) const;

	/** Makes the row show its content, taking no room while its entry is collapsed. */
	void ConstructRow(const TSharedRef<SWidget>& Content, const TSharedRef<STableViewBase>& InOwnerTableView);

	TWeakPtr<FDetailTreeNode> OwnerTreeNode;

private:
	EVisibility GetRowVisibility() const;
};
