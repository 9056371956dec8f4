#pragma once

#include "CoreMinimal.h"
#include "IPlacementModeModule.h"
#include "Styling/SlateTypes.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"
#include "Widgets/Views/SListView.h"

class SBox;
class SSearchBox;
class STextBlock;
class SWrapBox;

/** One placeable item as the panel lists it: the thumbnail of its class and its name, in a rounded frame. */
class SPlacementAssetEntry : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SPlacementAssetEntry)
	{
	}
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs, const TSharedPtr<const FPlaceableItem>& InItem);

	/** The item the entry shows. */
	TSharedPtr<const FPlaceableItem> Item;

private:
	const FSlateBrush* GetBorder() const;

	const FSlateBrush* NormalImage = nullptr;
};

/**
 * The panel of the "Place Actors" tab: a search box, one tab per placement category with the
 * category's icon, the active category's name, and its items, sorted as the category asks.
 */
class SPlacementModeTools : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SPlacementModeTools)
	{
	}
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	/** Shows the items of a category, as a click on its tab does. */
	void SetActiveTab(FName TabName);
	FName GetActiveTab() const { return ActiveTabName; }

private:
	/** Fills the tabs from the registered categories and keeps the active one if it is still there. */
	void UpdatePlacementCategories();
	/** Fills the list with the active category's items. */
	void UpdateShownItems();

	ECheckBoxState GetPlacementTabCheckedState(FName CategoryName) const;
	void OnCategoryChanged(const ECheckBoxState NewState, FName InCategory);
	TSharedRef<ITableRow> OnGenerateWidgetForItem(TSharedPtr<FPlaceableItem> InItem, const TSharedRef<STableViewBase>& OwnerTable);

	FName ActiveTabName;
	TArray<TSharedPtr<FPlaceableItem>> FilteredItems;
	TSharedPtr<SSearchBox> SearchBoxPtr;
	TSharedPtr<SWrapBox> CategoryFilterPtr;
	TSharedPtr<STextBlock> FilterLabelPtr;
	TSharedPtr<SBox> CustomContent;
	TSharedPtr<SBox> DataDrivenContent;
	TSharedPtr<SListView<TSharedPtr<FPlaceableItem>>> ListView;
};
