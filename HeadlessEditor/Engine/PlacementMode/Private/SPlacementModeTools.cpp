#include "SPlacementModeTools.h"

#include "ClassIconFinder.h"
#include "Styling/AppStyle.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Input/SCheckBox.h"
#include "Widgets/Input/SSearchBox.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/Layout/SWrapBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SOverlay.h"
#include "Widgets/Text/STextBlock.h"
#include "Widgets/Views/STableRow.h"

#define LOCTEXT_NAMESPACE "PlacementMode"

namespace
{
	/** Items with a sort order come first, by it; the others follow by name. */
	bool SortItemsByOrderThenName(const TSharedPtr<FPlaceableItem>& A, const TSharedPtr<FPlaceableItem>& B)
	{
		if (A->SortOrder.IsSet() || B->SortOrder.IsSet())
		{
			return A->SortOrder.IsSet() && (!B->SortOrder.IsSet() || A->SortOrder.GetValue() < B->SortOrder.GetValue());
		}
		return A->DisplayName.CompareTo(B->DisplayName) < 0;
	}

	/** The generic thumbnail of an item's class: the class's thumbnail image on the asset background. */
	TSharedRef<SWidget> MakePlacementAssetThumbnail(const FPlaceableItem& Item)
	{
		const FSlateBrush* ThumbnailBrush = Item.ClassThumbnailBrushOverride.IsNone() ? FClassIconFinder::FindThumbnailForClass(FClassIconFinder::GetIconClassForAssetData(Item.AssetData)) : FClassIconFinder::FindThumbnailForClass(nullptr, Item.ClassThumbnailBrushOverride);
		return SNew(SBorder)
			.BorderImage(FAppStyle::GetBrush("AssetThumbnail.AssetBackground"))
			.Padding(2.0f)
			.VAlign(VAlign_Center)
			.HAlign(HAlign_Center)[SNew(SImage).DesiredSizeOverride(FVector2D(64.0, 64.0)).Image(ThumbnailBrush)];
	}
}

void SPlacementAssetEntry::Construct(const FArguments& InArgs, const TSharedPtr<const FPlaceableItem>& InItem)
{
	Item = InItem;
	NormalImage = &FAppStyle::Get().GetWidgetStyle<FButtonStyle>("PlacementBrowser.Asset").Normal;

	// The thumbnail on the rounded dark back, the name on its own strip, and a thin frame over both.
	ChildSlot.Padding(FMargin(8.0f, 2.0f, 12.0f, 2.0f))
		[SNew(SOverlay) + SOverlay::Slot()[SNew(SBorder).BorderImage(FAppStyle::Get().GetBrush("PlacementBrowser.Asset.Background")).ToolTipText(Item->DisplayName).Padding(0.0f)[SNew(SHorizontalBox) + SHorizontalBox::Slot().Padding(8.0f, 4.0f).AutoWidth().HAlign(HAlign_Center).VAlign(VAlign_Center)[SNew(SBox).WidthOverride(40.0f).HeightOverride(40.0f)[MakePlacementAssetThumbnail(*Item)]] + SHorizontalBox::Slot().VAlign(VAlign_Fill).Padding(0.0f)[SNew(SBorder).BorderImage(FAppStyle::Get().GetBrush("PlacementBrowser.Asset.LabelBack"))[SNew(SHorizontalBox) + SHorizontalBox::Slot().Padding(9.0f, 0.0f, 0.0f, 1.0f).VAlign(VAlign_Center)[SNew(STextBlock).TextStyle(&FAppStyle::Get(), "PlacementBrowser.Asset.Name").Text(Item->DisplayName)]]]]] + SOverlay::Slot()[SNew(SBorder).BorderImage(this, &SPlacementAssetEntry::GetBorder)]];
}

const FSlateBrush* SPlacementAssetEntry::GetBorder() const
{
	// The headless editor has no pointer, so the frame shows its resting state.
	return NormalImage;
}

void SPlacementModeTools::Construct(const FArguments& InArgs)
{
	ActiveTabName = NAME_None;
	// The tabs wrap onto more rows when the panel is too narrow for them, centred as the engine's.
	SAssignNew(CategoryFilterPtr, SWrapBox).UseAllottedSize(true).HAlign(HAlign_Center);

	ChildSlot
		[SNew(SVerticalBox) + SVerticalBox::Slot().AutoHeight()[SNew(SBorder).BorderImage(FAppStyle::GetBrush("ToolPanel.GroupBorder")).Padding(8.0f)[SAssignNew(SearchBoxPtr, SSearchBox).HintText(LOCTEXT("SearchPlaceables", "Search Classes"))]] + SVerticalBox::Slot().AutoHeight().HAlign(HAlign_Fill)[SNew(SBorder).BorderImage(FAppStyle::GetBrush("ToolPanel.GroupBorder")).Padding(FMargin(8.0f, 6.0f, 8.0f, 8.0f)).HAlign(HAlign_Fill)[CategoryFilterPtr.ToSharedRef()]] + SVerticalBox::Slot().AutoHeight()[SNew(SBorder).BorderImage(FAppStyle::GetBrush("ToolPanel.GroupBorder")).Padding(FMargin(8.0f, 6.0f, 8.0f, 8.0f)).HAlign(HAlign_Center)[SAssignNew(FilterLabelPtr, STextBlock).Font(FAppStyle::Get().GetFontStyle("SmallFontBold"))]] + SVerticalBox::Slot().Padding(FMargin(0.0f, 3.0f))[SNew(SOverlay) + SOverlay::Slot()[SAssignNew(CustomContent, SBox)] + SOverlay::Slot()[SAssignNew(DataDrivenContent, SBox)[SAssignNew(ListView, SListView<TSharedPtr<FPlaceableItem>>).ListItemsSource(&FilteredItems).OnGenerateRow(this, &SPlacementModeTools::OnGenerateWidgetForItem)]]]];

	UpdatePlacementCategories();
}

void SPlacementModeTools::UpdatePlacementCategories()
{
	bool bBasicTabExists = false;
	FName TabToActivate;
	CategoryFilterPtr->ClearChildren();

	TArray<FPlacementCategoryInfo> Categories;
	IPlacementModeModule::Get().GetSortedCategories(Categories);
	for (const FPlacementCategoryInfo& Category : Categories)
	{
		bBasicTabExists |= Category.UniqueHandle == TEXT("Basic");
		if (Category.UniqueHandle == ActiveTabName)
		{
			TabToActivate = ActiveTabName;
		}
		// A tab is the category's icon on a toggle; the category's name is its tooltip.
		CategoryFilterPtr->AddSlot()
			.Padding(FMargin(2.0f, 1.0f))
				[SNew(SCheckBox)
						.Padding(FMargin(4.0f, 4.0f))
						.Style(&FAppStyle::Get(), "PaletteToolBar.Tab")
						.OnCheckStateChanged(this, &SPlacementModeTools::OnCategoryChanged, Category.UniqueHandle)
						.IsChecked(this, &SPlacementModeTools::GetPlacementTabCheckedState, Category.UniqueHandle)
						.ToolTipText(Category.DisplayName)[SNew(SImage).ColorAndOpacity(FSlateColor::UseForeground()).Image(Category.DisplayIcon.GetIcon())]];
	}

	// The basic category opens first when there is one, otherwise the first tab.
	if (TabToActivate.IsNone())
	{
		if (bBasicTabExists)
		{
			TabToActivate = TEXT("Basic");
		}
		else if (Categories.Num() > 0)
		{
			TabToActivate = Categories[0].UniqueHandle;
		}
	}
	SetActiveTab(TabToActivate);
}

void SPlacementModeTools::SetActiveTab(FName TabName)
{
	ActiveTabName = TabName;
	UpdateShownItems();
}

void SPlacementModeTools::UpdateShownItems()
{
	IPlacementModeModule& PlacementModeModule = IPlacementModeModule::Get();
	const FPlacementCategoryInfo* Category = PlacementModeModule.GetRegisteredPlacementCategory(ActiveTabName);
	if (!Category)
	{
		return;
	}
	// The label names the category in capitals.
	FilterLabelPtr->SetText(Category->DisplayName.ToUpper());
	if (Category->CustomGenerator)
	{
		CustomContent->SetContent(Category->CustomGenerator());
		CustomContent->SetVisibility(EVisibility::Visible);
		DataDrivenContent->SetVisibility(EVisibility::Collapsed);
		return;
	}
	FilteredItems.Reset();
	PlacementModeModule.GetItemsForCategory(Category->UniqueHandle, FilteredItems);
	if (Category->bSortable)
	{
		FilteredItems.Sort(&SortItemsByOrderThenName);
	}
	CustomContent->SetVisibility(EVisibility::Collapsed);
	DataDrivenContent->SetVisibility(EVisibility::Visible);
	ListView->RequestListRefresh();
}

ECheckBoxState SPlacementModeTools::GetPlacementTabCheckedState(FName CategoryName) const
{
	return ActiveTabName == CategoryName ? ECheckBoxState::Checked : ECheckBoxState::Unchecked;
}

void SPlacementModeTools::OnCategoryChanged(const ECheckBoxState NewState, FName InCategory)
{
	if (NewState == ECheckBoxState::Checked)
	{
		SetActiveTab(InCategory);
	}
}

TSharedRef<ITableRow> SPlacementModeTools::OnGenerateWidgetForItem(TSharedPtr<FPlaceableItem> InItem, const TSharedRef<STableViewBase>& OwnerTable)
{
	return SNew(STableRow<TSharedPtr<FPlaceableItem>>, OwnerTable).Style(&FAppStyle::Get(), "PlacementBrowser.PlaceableItemRow")[SNew(SPlacementAssetEntry, InItem)];
}

#undef LOCTEXT_NAMESPACE
