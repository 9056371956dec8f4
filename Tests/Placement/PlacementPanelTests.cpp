#include "HeadlessEditorSession.h"
#include "HeadlessPlacementMode.h"
#include "IPlacementModeModule.h"
#include "KyroCineCamCapture.h"
#include "KyroNDIReceiverManager.h"
#include "Styling/ISlateStyle.h"
#include "Styling/SlateIconFinder.h"
#include "Styling/SlateStyleRegistry.h"
#include "Support/PaintedScene.h"
#include "WidgetRenderer.h"

#include <gtest/gtest.h>

namespace
{
	const FName CategoryHandle(TEXT("Nimbrel"));
	/** The Place Actors tab, docked at the editor's left at its usual width. */
	const FVector2D TabSize(320.0, 720.0);

	const TArray<FString> EightSortedByName{
		TEXT("Kyro 360 Cam Capture"),
		TEXT("Kyro Cine Cam Capture"),
		TEXT("Kyro Media Output"),
		TEXT("Kyro Screen Capture"),
		TEXT("Kyro Spout Receiver Manager"),
		TEXT("Kyro Spout Sender Manager"),
		TEXT("Kyro Viewport Capture"),
		TEXT("Kyro Virtual Webcam Output"),
	};

	/** The lines the panel draws below the category's name: the items' names, top to bottom. */
	TArray<FString> GetListedNames(const FPaintedScene& Scene)
	{
		TArray<FString> Texts = Scene.GetTextsTopToBottom();
		const int32 Label = Texts.Find(TEXT("NIMBREL"));
		check(Label != INDEX_NONE);
		Texts.RemoveAt(0, Label + 1);
		return Texts;
	}

	const ISlateStyle& GetPluginStyle()
	{
		return *FSlateStyleRegistry::FindSlateStyle(TEXT("CastellanEditorStyle"));
	}
}

TEST(PlacementPanel, WithTheNDIModuleTheCategoryListsItsTenClassesByName)
{
	FHeadlessEditorSession Session;
	const FPaintedScene Scene(UE::Headless::MakePlacementPanel(CategoryHandle), TabSize);

	TArray<FString> Expected = EightSortedByName;
	Expected.Insert(TEXT("Kyro NDI Receiver Manager"), 3);
	Expected.Insert(TEXT("Kyro NDI Sender Manager"), 4);
	EXPECT_EQ(GetListedNames(Scene), Expected);
}

TEST(PlacementPanel, WithoutTheNDIModuleTheCategoryListsEightClassesByName)
{
	FHeadlessEditorOptions Options;
	Options.bKyroNDILoaded = false;
	FHeadlessEditorSession Session(Options);

	EXPECT_EQ(GetListedNames(FPaintedScene(UE::Headless::MakePlacementPanel(CategoryHandle), TabSize)), EightSortedByName);
}

TEST(PlacementPanel, EachItemShowsTheThumbnailTheStyleSetGivesItsClass)
{
	FHeadlessEditorSession Session;
	const FPaintedScene Scene(UE::Headless::MakePlacementPanel(CategoryHandle), TabSize);

	// Registered by key only, the thumbnails are found by the classes' names.
	EXPECT_EQ(FSlateIconFinder::FindCustomIconForClass(AKyroCineCamCapture::StaticClass(), TEXT("ClassThumbnail")).GetStyleSetName(), FName(TEXT("CastellanEditorStyle")));
	const TArray<FSlateRect> CineCam = Scene.FindImage(*GetPluginStyle().GetBrush(TEXT("ClassThumbnail.KyroCineCamCapture")));
	ASSERT_EQ(CineCam.Num(), 1);
	// The 64 unit thumbnail fills the 40 unit box, inside the background's 2 unit border, beside its name.
	EXPECT_FLOAT_EQ(CineCam[0].Right - CineCam[0].Left, 36.0f);
	EXPECT_FLOAT_EQ(CineCam[0].Bottom - CineCam[0].Top, 36.0f);
	const FPaintedScene::FLine* Name = Scene.FindLine(TEXT("Kyro Cine Cam Capture"));
	ASSERT_NE(Name, nullptr);
	EXPECT_LT(CineCam[0].Right, Name->Rect.Left);
	EXPECT_LT(CineCam[0].Top, Name->Rect.Top);
	EXPECT_GT(CineCam[0].Bottom, Name->Rect.Bottom);
	// The two NDI managers share one image, so it is drawn twice.
	EXPECT_EQ(Scene.FindImage(*GetPluginStyle().GetBrush(TEXT("ClassThumbnail.KyroNDIReceiverManager"))).Num(), 2);
}

TEST(PlacementPanel, TheCategoryTabShowsTheCategorysIconAboveItsName)
{
	FHeadlessEditorSession Session;
	const FPaintedScene Scene(UE::Headless::MakePlacementPanel(CategoryHandle), TabSize);

	const TArray<FSlateRect> Icons = Scene.FindImage(*GetPluginStyle().GetBrush(TEXT("KyroCastellan.PluginTaskbarIcon")));
	const FPaintedScene::FLine* Label = Scene.FindLine(TEXT("NIMBREL"));
	ASSERT_EQ(Icons.Num(), 1);
	ASSERT_NE(Label, nullptr);
	EXPECT_LT(Icons[0].Bottom, Label->Rect.Top);
	EXPECT_NEAR((Icons[0].Left + Icons[0].Right) / 2.0f, TabSize.X / 2.0, 1.0);
	EXPECT_NE(Scene.FindLine(TEXT("Search Classes")), nullptr);
}

TEST(PlacementPanel, ThePanelDrawsTheSameBytesEveryTime)
{
	FHeadlessEditorSession Session;
	const TSharedRef<SWidget> Panel = UE::Headless::MakePlacementPanel(CategoryHandle);

	const FRenderedImage First = FWidgetRenderer::RenderWidget(Panel, 320, 720);
	EXPECT_TRUE(First.Data == FWidgetRenderer::RenderWidget(Panel, 320, 720).Data);
	// The selected category's tab is drawn in the primary colour.
	EXPECT_EQ(First.GetPixel(160 - 22, 50), FLinearColor(FColor::FromHex(TEXT("0070E0FF"))).ToFColor(true));
}
