#include "ContentBrowser/NewAssetContextMenu.h"

#include "ClassIconFinder.h"
#include "Factories/Factory.h"
#include "Framework/MultiBox/MultiBoxBuilder.h"
#include "HeadlessContentBrowser.h"
#include "Styling/AppStyle.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SOverlay.h"
#include "Widgets/Text/STextBlock.h"

#include <algorithm>
#include <cmath>

void SFactoryMenuEntry::Construct(const FArguments& InArgs, UFactory* Factory)
{
	const FName ClassThumbnailBrushOverride = Factory->GetNewAssetThumbnailOverride();
	const FSlateBrush* ClassThumbnail = ClassThumbnailBrushOverride.IsNone() ? FClassIconFinder::FindThumbnailForClass(Factory->GetSupportedClass()) : FClassIconFinder::FindThumbnailForClass(nullptr, ClassThumbnailBrushOverride);
	// The colour of the asset type; white, as no type colours the headless editor's assets.
	const FLinearColor AssetColor = FLinearColor::White;
	const float StripHeight = std::max(std::ceil(static_cast<float>(InArgs._Width) * 0.025f), 3.0f);

	// The thumbnail on the asset background with the type's colour along its bottom, then the name.
	ChildSlot
		[SNew(SHorizontalBox) + SHorizontalBox::Slot().Padding(4.0f, 0.0f, 0.0f, 0.0f).VAlign(VAlign_Center).AutoWidth()[SNew(SOverlay) + SOverlay::Slot()[SNew(SBox).WidthOverride(static_cast<float>(InArgs._Width + 4)).HeightOverride(static_cast<float>(InArgs._Height + 4))[SNew(SBorder).BorderImage(FAppStyle::GetBrush("AssetThumbnail.AssetBackground")).BorderBackgroundColor(AssetColor.CopyWithNewOpacity(0.3f)).Padding(2.0f).VAlign(VAlign_Center).HAlign(HAlign_Center)[SNew(SImage).Image(ClassThumbnail)]]] + SOverlay::Slot().HAlign(HAlign_Fill).VAlign(VAlign_Bottom)[SNew(SBorder).BorderImage(FAppStyle::GetBrush("WhiteBrush")).BorderBackgroundColor(AssetColor).Padding(FMargin(0.0f, StripHeight, 0.0f, 0.0f))]] + SHorizontalBox::Slot().VAlign(VAlign_Center).Padding(4.0f, 0.0f, 4.0f, 0.0f)[SNew(SVerticalBox) + SVerticalBox::Slot().Padding(0.0f, 0.0f, 0.0f, 1.0f).AutoHeight()[SNew(STextBlock).Font(FAppStyle::GetFontStyle("LevelViewportContextMenu.AssetLabel.Text.Font")).Text(Factory->GetDisplayName())]]];
}

TSharedRef<SWidget> FNewAssetContextMenu::MakeCategoryMenu(uint32 AssetTypeCategory)
{
	TArray<UFactory*> Factories = UE::Headless::GetNewAssetFactories().FilterByPredicate([AssetTypeCategory](const UFactory* Factory)
		{ return (Factory->GetMenuCategories() & AssetTypeCategory) != 0; });
	Factories.Sort([](const UFactory& A, const UFactory& B)
		{ return A.GetDisplayName().CompareToCaseIgnored(B.GetDisplayName()) < 0; });

	FMenuBuilder MenuBuilder(true, nullptr);
	MenuBuilder.BeginSection(TEXT("Section"));
	for (UFactory* Factory : Factories)
	{
		// Choosing an entry asks the content browser for a new asset; the headless editor makes it with UE::Headless::CreateNewAsset.
		MenuBuilder.AddMenuEntry(FUIAction(), SNew(SFactoryMenuEntry, Factory));
	}
	MenuBuilder.EndSection();
	return MenuBuilder.MakeWidget();
}
