#pragma once

#include "CoreMinimal.h"
#include "Misc/Attribute.h"
#include "Textures/SlateIcon.h"

struct FTabSpawnerEntry;

/** An entry of the Window menu's structure: a group, or a tab spawner within a group. */
class SLATE_API FWorkspaceItem : public TSharedFromThis<FWorkspaceItem>
{
public:
	static TSharedRef<FWorkspaceItem> NewGroup(const FText& DisplayName, const FSlateIcon& Icon = FSlateIcon(), const bool bSortChildren = false);
	static TSharedRef<FWorkspaceItem> NewGroup(const FText& DisplayName, const FText& TooltipText, const FSlateIcon& Icon = FSlateIcon(), const bool bSortChildren = false);

	TSharedRef<FWorkspaceItem> AddGroup(const FText& InDisplayName, const FSlateIcon& InIcon = FSlateIcon(), const bool InSortChildren = false);

	const FText& GetDisplayName() const { return DisplayNameAttribute.Get(); }
	const FText& GetTooltipText() const { return TooltipTextAttribute.Get(); }
	const FSlateIcon& GetIcon() const { return Icon; }
	const TArray<TSharedRef<FWorkspaceItem>>& GetChildItems() const { return ChildItems; }

	void AddItem(const TSharedRef<FWorkspaceItem>& ItemToAdd);
	void RemoveItem(const TSharedRef<FWorkspaceItem>& ItemToRemove);
	void ClearItems();

	virtual TSharedPtr<FTabSpawnerEntry> AsSpawnerEntry() { return nullptr; }
	TSharedPtr<FWorkspaceItem> GetParent() const { return ParentItem.Pin(); }

	virtual ~FWorkspaceItem() = default;

protected:
	FWorkspaceItem(const FText& InDisplayName, const FSlateIcon& InIcon, const bool bInSortChildren);
	FWorkspaceItem(const FText& InDisplayName, const FText& InTooltipText, const FSlateIcon& InIcon, const bool bInSortChildren);

	FSlateIcon Icon;
	TAttribute<FText> DisplayNameAttribute;
	TAttribute<FText> TooltipTextAttribute;
	bool bSortChildren;
	TArray<TSharedRef<FWorkspaceItem>> ChildItems;
	TWeakPtr<FWorkspaceItem> ParentItem;
};
