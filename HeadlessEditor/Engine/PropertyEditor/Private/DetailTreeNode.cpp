#include "DetailTreeNode.h"

TArray<TSharedRef<FDetailTreeNode>> FDetailTreeNode::BuildTree(IDetailsViewPrivate& View)
{
	TArray<TSharedRef<FDetailTreeNode>> Roots;
	for (const TSharedRef<FHeadlessDetailCategory>& Category : View.GetModel().GetCategories())
	{
		if (Category->bHidden)
		{
			continue;
		}
		const TSharedRef<FDetailTreeNode> CategoryNode = MakeShared<FDetailTreeNode>(View, EType::Category, Category, nullptr, 0);
		TArray<TSharedRef<FHeadlessDetailRow>> Simple;
		TArray<TSharedRef<FHeadlessDetailRow>> Advanced;
		for (const TSharedRef<FHeadlessDetailRow>& Row : Category->Rows)
		{
			(Row->bAdvanced ? Advanced : Simple).Add(Row);
		}
		CategoryNode->AddChildRows(Simple, {});
		// The expander sits between the simple rows and the advanced ones it shows.
		if (Advanced.Num() > 0)
		{
			const TSharedRef<FDetailTreeNode> Dropdown = MakeShared<FDetailTreeNode>(View, EType::AdvancedDropdown, Category, nullptr, 1);
			Dropdown->Parent = CategoryNode;
			CategoryNode->Children.Add(Dropdown);
			CategoryNode->AddChildRows(Advanced, {});
		}
		Roots.Add(CategoryNode);
	}
	return Roots;
}

FDetailTreeNode::FDetailTreeNode(IDetailsViewPrivate& InView, EType InType, const TSharedRef<FHeadlessDetailCategory>& InCategory, const TSharedPtr<FHeadlessDetailRow>& InRow, int32 InDepth)
	: View(InView)
	, Type(InType)
	, Category(InCategory)
	, Row(InRow)
	, Depth(InDepth)
{
}

void FDetailTreeNode::AddChildRows(const TArray<TSharedRef<FHeadlessDetailRow>>& Rows, const TArray<TSharedRef<FHeadlessDetailRow>>& InPassedRows)
{
	for (const TSharedRef<FHeadlessDetailRow>& ChildRow : Rows)
	{
		if (ChildRow->ShowsOnlyChildren())
		{
			TArray<TSharedRef<FHeadlessDetailRow>> Passed = InPassedRows;
			Passed.Add(ChildRow);
			AddChildRows(ChildRow->Children, Passed);
			continue;
		}
		// A row for a property that does not exist shows nothing.
		if (ChildRow->Kind == FHeadlessDetailRow::EKind::Property && !ChildRow->Widgets.HasAnyContent())
		{
			continue;
		}
		const TSharedRef<FDetailTreeNode> Child = MakeShared<FDetailTreeNode>(View, EType::Item, Category, ChildRow, Depth + 1);
		Child->Parent = AsShared();
		Child->PassedRows = InPassedRows;
		Child->AddChildRows(ChildRow->Children, {});
		Children.Add(Child);
	}
}

bool FDetailTreeNode::IsExpanded() const
{
	switch (Type)
	{
		case EType::Category:
			return Category->bExpanded;
		case EType::AdvancedDropdown:
			return Category->IsAdvancedShown();
		default:
			return Row->bExpanded;
	}
}

void FDetailTreeNode::SetExpanded(bool bExpanded)
{
	FHeadlessDetailsView& Model = View.GetModel();
	switch (Type)
	{
		case EType::Category:
			Model.SetExpanded(*Category, bExpanded);
			break;
		case EType::AdvancedDropdown:
			Model.SetAdvancedShown(*Category, bExpanded);
			break;
		default:
			Model.SetExpanded(*Row, bExpanded);
			break;
	}
}

bool FDetailTreeNode::AnyChildVisible(bool bAdvancedOnly) const
{
	return Children.ContainsByPredicate([bAdvancedOnly](const TSharedRef<FDetailTreeNode>& Child)
		{ return Child->Type == EType::Item && (!bAdvancedOnly || Child->Row->bAdvanced) && Child->IsVisible(); });
}

bool FDetailTreeNode::IsVisible() const
{
	const TSharedPtr<FDetailTreeNode> ParentNode = Parent.Pin();
	switch (Type)
	{
		case EType::Category:
			return AnyChildVisible(false);
		case EType::AdvancedDropdown:
			return ParentNode.IsValid() && ParentNode->AnyChildVisible(true);
		default:
			break;
	}
	// A collapsed row hides the rows under it, also those of a struct shown only through its children.
	if (Row->GetVisibility() == EVisibility::Collapsed)
	{
		return false;
	}
	for (const TSharedRef<FHeadlessDetailRow>& Passed : PassedRows)
	{
		if (Passed->GetVisibility() == EVisibility::Collapsed)
		{
			return false;
		}
	}
	return !ParentNode.IsValid() || ParentNode->Type != EType::Item || ParentNode->IsVisible();
}

void FDetailTreeNode::AppendShownNodes(TArray<TSharedRef<FDetailTreeNode>>& OutNodes) const
{
	OutNodes.Add(ConstCastSharedRef<FDetailTreeNode>(AsShared()));
	if (Type == EType::AdvancedDropdown || !IsExpanded())
	{
		return;
	}
	for (const TSharedRef<FDetailTreeNode>& Child : Children)
	{
		if (Child->IsAdvancedItem() && !Category->IsAdvancedShown())
		{
			continue;
		}
		Child->AppendShownNodes(OutNodes);
	}
}
