#pragma once

#include "CoreMinimal.h"
#include "HeadlessDetailsView.h"
#include "Layout/Visibility.h"

class FDetailColumnSizeData;

using UE::Headless::FHeadlessDetailCategory;
using UE::Headless::FHeadlessDetailRow;
using UE::Headless::FHeadlessDetailsView;

/** What the rows of a details view ask of the view that shows them. */
class IDetailsViewPrivate
{
public:
	virtual ~IDetailsViewPrivate() = default;

	virtual FDetailColumnSizeData& GetColumnSizeData() = 0;
	/** Whether the scroll bar shows over the rows' right edge. */
	virtual bool IsScrollBarVisible() const = 0;
	/** The layout the rows show, which keeps what is open. */
	virtual FHeadlessDetailsView& GetModel() const = 0;
};

/**
 * One entry of a details view's tree: a category, one of its rows (a property, a custom row or a
 * group, with the rows under it) or the expander of the category's advanced rows. The view shows
 * the entries whose parents are open, each as a table row.
 */
class FDetailTreeNode : public TSharedFromThis<FDetailTreeNode>
{
public:
	enum class EType : uint8
	{
		Category,
		Item,
		AdvancedDropdown,
	};

	/** The categories of the view's layout, in display order, with their entries under them. */
	static TArray<TSharedRef<FDetailTreeNode>> BuildTree(IDetailsViewPrivate& View);

	FDetailTreeNode(IDetailsViewPrivate& InView, EType InType, const TSharedRef<FHeadlessDetailCategory>& InCategory, const TSharedPtr<FHeadlessDetailRow>& InRow, int32 InDepth);

	EType GetType() const { return Type; }
	/** How deep the entry sits: 0 for a category, 1 for its rows, one more for each row above. */
	int32 GetDepth() const { return Depth; }
	FHeadlessDetailCategory& GetCategory() const { return *Category; }
	/** The row an item shows; null for categories and advanced expanders. */
	const TSharedPtr<FHeadlessDetailRow>& GetRow() const { return Row; }
	IDetailsViewPrivate& GetDetailsView() const { return View; }

	bool HasChildren() const { return Children.Num() > 0; }
	/** Whether the entries under it show (for the advanced expander: the category's advanced rows). */
	bool IsExpanded() const;
	/** Opens or closes it, as a click on its arrow does. */
	void SetExpanded(bool bExpanded);
	/** Whether the advanced expander can be clicked: not when the category has advanced rows only. */
	bool IsAdvancedDropdownEnabled() const { return !Category->HasOnlyAdvancedRows(); }

	/** Whether it takes room: its rows' bound visibility, and for a category or expander, whether any row under it shows. */
	bool IsVisible() const;

	/** Adds this entry and, where it is open, the entries under it, in display order. */
	void AppendShownNodes(TArray<TSharedRef<FDetailTreeNode>>& OutNodes) const;

private:
	void AddChildRows(const TArray<TSharedRef<FHeadlessDetailRow>>& Rows, const TArray<TSharedRef<FHeadlessDetailRow>>& InPassedRows);
	bool IsAdvancedItem() const { return Type == EType::Item && Row->bAdvanced; }
	bool AnyChildVisible(bool bAdvancedOnly) const;

	IDetailsViewPrivate& View;
	EType Type;
	TSharedRef<FHeadlessDetailCategory> Category;
	TSharedPtr<FHeadlessDetailRow> Row;
	int32 Depth;
	TWeakPtr<FDetailTreeNode> Parent;
	/** Rows shown only through their children (structs with an empty header): their visibility still counts. */
	TArray<TSharedRef<FHeadlessDetailRow>> PassedRows;
	TArray<TSharedRef<FDetailTreeNode>> Children;
};
