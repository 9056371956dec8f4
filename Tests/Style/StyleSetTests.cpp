#include "CastellanEditorStyle.h"
#include "Framework/Application/SlateApplication.h"
#include "HeadlessEditorSession.h"
#include "HeadlessSlateRenderer.h"
#include "HeadlessStyles.h"
#include "Styling/SlateBrush.h"
#include "Styling/SlateStyle.h"
#include "Styling/SlateStyleRegistry.h"
#include "Support/PngFile.h"

#include <gtest/gtest.h>

namespace
{
	struct FExpectedBrush
	{
		const TCHAR* Key;
		const TCHAR* Image;
		int32 Size;
	};

	// The brush table in the order the style set is filled.
	const FExpectedBrush ExpectedBrushes[] = {
		{TEXT("KyroCastellan.PluginTaskbarIcon"), TEXT("Logo/Logo_40x"), 40},
		{TEXT("KyroCastellan.PluginNotificationIcon"), TEXT("Logo/Logo_80x"), 80},
		{TEXT("KyroCastellan.WizardIcon_16x"), TEXT("Wizard/Wizard_16x"), 16},
		{TEXT("KyroCastellan.WizardIcon_128x"), TEXT("Wizard/Wizard_128x"), 128},
		{TEXT("ClassThumbnail.KyroCineCamCapture"), TEXT("ClassIcons/CineCapture_64x"), 64},
		{TEXT("ClassIcon.KyroCineCamCapture"), TEXT("ClassIcons/CineCapture_16x"), 16},
		{TEXT("ClassThumbnail.Kyro360CamCapture"), TEXT("ClassIcons/360Capture_64x"), 64},
		{TEXT("ClassIcon.Kyro360CamCapture"), TEXT("ClassIcons/360Capture_16x"), 16},
		{TEXT("ClassThumbnail.KyroSpoutSenderManager"), TEXT("ClassIcons/SpoutSender_64x"), 64},
		{TEXT("ClassIcon.KyroSpoutSenderManager"), TEXT("ClassIcons/SpoutSender_16x"), 16},
		{TEXT("ClassThumbnail.KyroSpoutReceiverManager"), TEXT("ClassIcons/SpoutReceiver_64x"), 64},
		{TEXT("ClassIcon.KyroSpoutReceiverManager"), TEXT("ClassIcons/SpoutReceiver_16x"), 16},
		{TEXT("ClassThumbnail.KyroNDISenderManager"), TEXT("ClassIcons/NDI_64x"), 64},
		{TEXT("ClassIcon.KyroNDISenderManager"), TEXT("ClassIcons/NDI_16x"), 16},
		{TEXT("ClassThumbnail.KyroNDIReceiverManager"), TEXT("ClassIcons/NDI_64x"), 64},
		{TEXT("ClassIcon.KyroNDIReceiverManager"), TEXT("ClassIcons/NDI_16x"), 16},
		{TEXT("ClassThumbnail.KyroViewportCapture"), TEXT("ClassIcons/ViewportCapture_64x"), 64},
		{TEXT("ClassIcon.KyroViewportCapture"), TEXT("ClassIcons/ViewportCapture_16x"), 16},
		{TEXT("ClassThumbnail.KyroMediaOutput"), TEXT("ClassIcons/MediaOutput_64x"), 64},
		{TEXT("ClassIcon.KyroMediaOutput"), TEXT("ClassIcons/MediaOutput_16x"), 16},
		{TEXT("ClassThumbnail.KyroVirtualWebcamOutput"), TEXT("ClassIcons/VirtualCam_64x"), 64},
		{TEXT("ClassIcon.KyroVirtualWebcamOutput"), TEXT("ClassIcons/VirtualCam_16x"), 16},
		{TEXT("ClassThumbnail.KyroScreenCapture"), TEXT("ClassIcons/ScreenCapture_64x"), 64},
		{TEXT("ClassIcon.KyroScreenCapture"), TEXT("ClassIcons/ScreenCapture_16x"), 16},
		{TEXT("ClassThumbnail.KyroCGElement"), TEXT("ClassIcons/CGElement_64x"), 64},
		{TEXT("ClassIcon.KyroCGElement"), TEXT("ClassIcons/CGElement_16x"), 16},
		{TEXT("ClassThumbnail.KyroCGMatte"), TEXT("ClassIcons/CGMatte_64x"), 64},
		{TEXT("ClassIcon.KyroCGMatte"), TEXT("ClassIcons/CGMatte_16x"), 16},
		{TEXT("ClassThumbnail.KyroVideoPlanePlacement"), TEXT("ClassIcons/VideoPlacementPlane_64x"), 64},
		{TEXT("ClassIcon.KyroVideoPlanePlacement"), TEXT("ClassIcons/VideoPlacementPlane_16x"), 16},
	};

	const FSlateStyleSet& GetRegisteredStyle()
	{
		const ISlateStyle* Style = FSlateStyleRegistry::FindSlateStyle(TEXT("CastellanEditorStyle"));
		check(Style);
		return static_cast<const FSlateStyleSet&>(*Style);
	}

	FString ImageFile(const FExpectedBrush& Brush)
	{
		return FHeadlessEditorSession::GetPluginBaseDir() / TEXT("Resources") / FString(Brush.Image) + TEXT(".png");
	}
}

TEST(StyleSet, HoldsEveryBrushOfTheTableInOrderWithItsImageAndSize)
{
	FHeadlessEditorSession Session;
	const FSlateStyleSet& Style = GetRegisteredStyle();

	const TArray<FName> Keys = UE::Headless::GetBrushKeys(Style);
	ASSERT_EQ(Keys.Num(), static_cast<int32>(UE_ARRAY_COUNT(ExpectedBrushes)));
	for (int32 Index = 0; Index < Keys.Num(); ++Index)
	{
		const FExpectedBrush& Expected = ExpectedBrushes[Index];
		SCOPED_TRACE(TCHAR_TO_UTF8(Expected.Key));
		EXPECT_EQ(Keys[Index], FName(Expected.Key));
		const FSlateBrush* Brush = Style.GetBrush(Expected.Key);
		ASSERT_NE(Brush, nullptr);
		EXPECT_EQ(Brush->GetResourceName().ToString(), ImageFile(Expected));
		EXPECT_EQ(Brush->GetImageSize(), FVector2D(Expected.Size, Expected.Size));
		EXPECT_EQ(Brush->TintColor.GetSpecifiedColor(), FLinearColor::White);
	}
}

TEST(StyleSet, NdiReceiverUsesTheSharedSmallNdiIcon)
{
	FHeadlessEditorSession Session;

	const FSlateBrush* Brush = GetRegisteredStyle().GetBrush(TEXT("ClassIcon.KyroNDIReceiverManager"));

	ASSERT_NE(Brush, nullptr);
	EXPECT_TRUE(Brush->GetResourceName().ToString().EndsWith(TEXT("/Resources/ClassIcons/NDI_16x.png"), ESearchCase::CaseSensitive));
	EXPECT_EQ(Brush->GetImageSize(), FVector2D(16.0, 16.0));
}

TEST(StyleSet, EveryImageExistsAsAValidPngOfTheDeclaredSize)
{
	for (const FExpectedBrush& Expected : ExpectedBrushes)
	{
		const std::string Path = TCHAR_TO_UTF8(*ImageFile(Expected));
		SCOPED_TRACE(Path);
		std::string Error;
		const std::optional<FPngInfo> Png = ReadPng(Path, Error);
		ASSERT_TRUE(Png.has_value()) << Error;
		EXPECT_EQ(Png->Width, static_cast<uint32_t>(Expected.Size));
		EXPECT_EQ(Png->Height, static_cast<uint32_t>(Expected.Size));
	}
}

TEST(StyleSet, InitialisingTwiceRegistersOnce)
{
	FHeadlessEditorSession Session;
	const ISlateStyle* Registered = FSlateStyleRegistry::FindSlateStyle(TEXT("CastellanEditorStyle"));

	FCastellanEditorStyle::Initialize();

	EXPECT_EQ(FSlateStyleRegistry::FindSlateStyle(TEXT("CastellanEditorStyle")), Registered);
	EXPECT_EQ(&FCastellanEditorStyle::Get(), Registered);
}

TEST(StyleSet, ShutdownRemovesTheStyleFromTheRegistry)
{
	FHeadlessEditorSession Session;

	Session.ShutdownEditorModule();

	EXPECT_EQ(FSlateStyleRegistry::FindSlateStyle(TEXT("CastellanEditorStyle")), nullptr);
}

TEST(StyleSet, StartupAsksTheRendererToReloadTexturesOnce)
{
	FHeadlessEditorOptions Options;
	Options.bStartEditorModule = false;
	FHeadlessEditorSession Session(Options);
	const FHeadlessSlateRenderer& Renderer = static_cast<const FHeadlessSlateRenderer&>(*FSlateApplication::Get().GetRenderer());
	const int32 ReloadsBefore = Renderer.GetTextureReloadCount();

	Session.StartEditorModule();

	EXPECT_EQ(Renderer.GetTextureReloadCount(), ReloadsBefore + 1);
}

TEST(StyleSetDeathTest, ShuttingDownAStyleThatWasNeverMadeIsFatal)
{
	EXPECT_DEATH(FCastellanEditorStyle::Shutdown(), "StyleInstance.IsValid\\(\\)");
}
