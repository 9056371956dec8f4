#include "Framework/Docking/WorkspaceItem.h"

FWorkspaceItem::FWorkspaceItem(const FText& InDisplayName, const FSlateIcon& InIcon, const bool bInSortChildren)
	: Icon(InIcon)
	, DisplayNameAttribute(InDisplayName)
	, TooltipTextAttribute(FText::GetEmpty())
	, bSortChildren(bInSortChildren)
{
}

FWorkspaceItem::FWorkspaceItem(const FText& InDisplayName, const FText& InTooltipText, const FSlateIcon& InIcon, const bool bInSortChildren)
	: Icon(InIcon)
	, DisplayNameAttribute(InDisplayName)
	, TooltipTextAttribute(InTooltipText)
	, bSortChildren(bInSortChildren)
{
}

TSharedRef<FWorkspaceItem> FWorkspaceItem::NewGroup(const FText& DisplayName, const FSlateIcon& Icon, const bool bSortChildren)
{
	return MakeShareable(new FWorkspaceItem(DisplayName, Icon, bSortChildren));
}

TSharedRef<FWorkspaceItem> FWorkspaceItem::NewGroup(const FText& DisplayName, const FText& TooltipText, const FSlateIcon& Icon, const bool bSortChildren)
{
	return MakeShareable(new FWorkspaceItem(DisplayName, TooltipText, Icon, bSortChildren));
}

TSharedRef<FWorkspaceItem> FWorkspaceItem::AddGroup(const FText& InDisplayName, const FSlateIcon& InIcon, const bool InSortChildren)
{
	TSharedRef<FWorkspaceItem> NewItem = FWorkspaceItem::NewGroup(InDisplayName, InIcon, InSortChildren);
	AddItem(NewItem);
	return NewItem;
}

void FWorkspaceItem::AddItem(const TSharedRef<FWorkspaceItem>& ItemToAdd)
{
	ItemToAdd->ParentItem = AsShared();
	ChildItems.Add(ItemToAdd);
}

void FWorkspaceItem::RemoveItem(const TSharedRef<FWorkspaceItem>& ItemToRemove)
{
	ChildItems.Remove(ItemToRemove);
}

void FWorkspaceItem::ClearItems()
{
	ChildItems.Empty();
}
