#include "SDetailTableRowBase.h"

#include "Styling/AppStyle.h"
#include "Styling/ISlateStyle.h"
#include "Styling/StyleColors.h"
#include "Widgets/Layout/SBorder.h"

#include <algorithm>

const float SDetailTableRowBase::ScrollBarPadding = 16.0f;

int32 SDetailTableRowBase::GetIndentLevelForBackgroundColor() const
{
	const TSharedPtr<FDetailTreeNode> Node = OwnerTreeNode.Pin();
	// Every row lies in a category; the category's own rows are not indented.
	return Node.IsValid() ? std::max(0, Node->GetDepth() - 1) : 0;
}

bool SDetailTableRowBase::DoesItemHaveChildren() const
{
	const TSharedPtr<FDetailTreeNode> Node = OwnerTreeNode.Pin();
	return Node.IsValid() && Node->HasChildren();
}

bool SDetailTableRowBase::IsItemExpanded() const
{
	const TSharedPtr<FDetailTreeNode> Node = OwnerTreeNode.Pin();
	return Node.IsValid() && Node->IsExpanded();
}

void SDetailTableRowBase::ToggleExpansion()
{
	if (const TSharedPtr<FDetailTreeNode> Node = OwnerTreeNode.Pin())
	{
		Node->SetExpanded(!Node->IsExpanded());
	}
}

void SDetailTableRowBase::ConstructRow(const TSharedRef<SWidget>& Content, const TSharedRef<STableViewBase>& InOwnerTableView)
{
	STableRow<TSharedRef<FDetailTreeNode>>::Construct(STableRow<TSharedRef<FDetailTreeNode>>::FArguments()[Content], InOwnerTableView);
	SetVisibility(TAttribute<EVisibility>::CreateSP(this, &SDetailTableRowBase::GetRowVisibility));
}

EVisibility SDetailTableRowBase::GetRowVisibility() const
{
	const TSharedPtr<FDetailTreeNode> Node = OwnerTreeNode.Pin();
	return Node.IsValid() && Node->IsVisible() ? EVisibility::Visible : EVisibility::Collapsed;
}

TSharedRef<SWidget> SDetailTableRowBase::MakeScrollBarWell(TAttribute<const FSlateBrush*> RowBrush, TAttribute<FSlateColor> RowColor) const
{
	const TWeakPtr<FDetailTreeNode> WeakNode = OwnerTreeNode;
	auto IsScrollBarShown = [WeakNode]()
	{
		const TSharedPtr<FDetailTreeNode> Node = WeakNode.Pin();
		return Node.IsValid() && Node->GetDetailsView().IsScrollBarVisible();
	};
	return SNew(SBorder)
		.BorderImage_Lambda([IsScrollBarShown, RowBrush]()
			{ return IsScrollBarShown() ? FAppStyle::Get().GetBrush("DetailsView.GridLine") : RowBrush.Get(); })
		.BorderBackgroundColor_Lambda([IsScrollBarShown, RowColor]()
			{ return IsScrollBarShown() ? FSlateColor(FStyleColors::White) : RowColor.Get(); })
		.Padding(FMargin(0.0f, 0.0f, ScrollBarPadding, 0.0f));
}
