#include "AssetTypeCategories.h"
#include "ClassIconFinder.h"
#include "Factories/Factory.h"
#include "Factories/KyroNDISoundWaveFactory.h"
#include "HeadlessContentBrowser.h"
#include "HeadlessEditorSession.h"
#include "HeadlessMenus.h"
#include "KyroNDISoundWave.h"
#include "Styling/AppStyle.h"
#include "Styling/ISlateStyle.h"
#include "Support/PaintedScene.h"
#include "WidgetRenderer.h"
#include "Widgets/SWidget.h"

#include <gtest/gtest.h>

namespace
{
	UFactory& GetFactory()
	{
		return *UKyroNDISoundWaveFactory::StaticClass()->GetDefaultObject<UFactory>();
	}

	/** The widget painted at the size it asks for, as its menu lays it out. */
	FPaintedScene PaintAtDesiredSize(const TSharedRef<SWidget>& Widget)
	{
		Widget->SlatePrepass(1.0f);
		return FPaintedScene(Widget, Widget->GetDesiredSize());
	}
}

TEST(NewAssetMenuEntry, TheEntryShowsTheDefaultClassThumbnailBesideTheFactorysName)
{
	FHeadlessEditorSession Session;
	const FPaintedScene Scene = PaintAtDesiredSize(UE::Headless::MakeNewAssetMenuEntry(GetFactory()));

	const FPaintedScene::FLine* Label = Scene.FindLine(TEXT("Kyro NDI Sound Wave"));
	ASSERT_NE(Label, nullptr);
	EXPECT_EQ(Scene.GetLines().Num(), 1);
	// The plugin's style set has no thumbnail for the sound wave, nor has any of its parent classes.
	const FSlateBrush* Thumbnail = FClassIconFinder::FindThumbnailForClass(UKyroNDISoundWave::StaticClass());
	EXPECT_EQ(Thumbnail, FAppStyle::Get().GetBrush("ClassThumbnail.Default"));
	const TArray<FSlateRect> Drawn = Scene.FindImage(*Thumbnail);
	ASSERT_EQ(Drawn.Num(), 1);
	// In a 36 unit box with a 2 unit border.
	EXPECT_FLOAT_EQ(Drawn[0].Right - Drawn[0].Left, 32.0f);
	EXPECT_LT(Drawn[0].Right, Label->Rect.Left);
}

TEST(NewAssetMenuEntry, AFactoryWithoutACategoryIsListedUnderMiscellaneous)
{
	FHeadlessEditorSession Session;
	EXPECT_EQ(GetFactory().GetMenuCategories(), static_cast<uint32>(EAssetTypeCategories::Misc));

	const TSharedRef<SWidget> Miscellaneous = UE::Headless::MakeMenuWindow(UE::Headless::MakeNewAssetCategoryMenu(EAssetTypeCategories::Misc));
	EXPECT_NE(PaintAtDesiredSize(Miscellaneous).FindLine(TEXT("Kyro NDI Sound Wave")), nullptr);
	const TSharedRef<SWidget> Sounds = UE::Headless::MakeMenuWindow(UE::Headless::MakeNewAssetCategoryMenu(EAssetTypeCategories::Sounds));
	EXPECT_EQ(PaintAtDesiredSize(Sounds).FindLine(TEXT("Kyro NDI Sound Wave")), nullptr);
}

TEST(NewAssetMenuEntry, TheEntryDrawsTheSameBytesEveryTime)
{
	FHeadlessEditorSession Session;
	const TSharedRef<SWidget> Entry = UE::Headless::MakeNewAssetMenuEntry(GetFactory());
	Entry->SlatePrepass(1.0f);
	const int32 Width = static_cast<int32>(Entry->GetDesiredSize().X);
	const int32 Height = static_cast<int32>(Entry->GetDesiredSize().Y);

	const FRenderedImage First = FWidgetRenderer::RenderWidget(Entry, Width, Height);
	EXPECT_TRUE(First.Data == FWidgetRenderer::RenderWidget(Entry, Width, Height).Data);
	// The asset type's colour runs along the thumbnail's bottom edge: white, as no type colours it.
	EXPECT_EQ(First.GetPixel(20, Height - 1), FColor(255, 255, 255, 255));
}
