// Copyright Nimbrel. All Rights Reserved.

#include "CastellanEditorStyle.h"

#include "Brushes/SlateImageBrush.h"
#include "Framework/Application/SlateApplication.h"
#include "Interfaces/IPluginManager.h"
#include "Misc/Paths.h"
#include "Rendering/SlateRenderer.h"
#include "Styling/SlateStyle.h"
#include "Styling/SlateStyleRegistry.h"

TSharedPtr<FSlateStyleSet> FCastellanEditorStyle::StyleInstance = nullptr;

namespace CastellanEditorStyle
{
	const FVector2D Icon16x16(16.0, 16.0);
	const FVector2D Icon40x40(40.0, 40.0);
	const FVector2D Icon64x64(64.0, 64.0);
	const FVector2D Icon80x80(80.0, 80.0);
	const FVector2D Icon128x128(128.0, 128.0);
}

void FCastellanEditorStyle::Initialize()
{
	if (!StyleInstance.IsValid())
	{
		StyleInstance = Create();
		FSlateStyleRegistry::RegisterSlateStyle(*StyleInstance);
	}
}

void FCastellanEditorStyle::Shutdown()
{
	check(StyleInstance.IsValid());
	FSlateStyleRegistry::UnRegisterSlateStyle(*StyleInstance);
	ensure(StyleInstance.IsUnique());
	StyleInstance.Reset();
}

void FCastellanEditorStyle::ReloadTextures()
{
	if (FSlateApplication::IsInitialized())
	{
		FSlateApplication::Get().GetRenderer()->ReloadTextureResources();
	}
}

const ISlateStyle& FCastellanEditorStyle::Get()
{
	return *StyleInstance;
}

FName FCastellanEditorStyle::GetStyleSetName()
{
	static FName StyleSetName(TEXT("CastellanEditorStyle"));
	return StyleSetName;
}

TSharedRef<FSlateStyleSet> FCastellanEditorStyle::Create()
{
	using namespace CastellanEditorStyle;

	TSharedRef<FSlateStyleSet> Style = MakeShareable(new FSlateStyleSet(GetStyleSetName()));
	Style->SetContentRoot(FPaths::Combine(IPluginManager::Get().FindPlugin(TEXT("KyroCastellan"))->GetBaseDir(), TEXT("Resources")));

	auto SetImage = [&Style](const TCHAR* Key, const TCHAR* Path, const FVector2D& Size)
	{
		Style->Set(Key, new FSlateImageBrush(Style->RootToContentDir(Path, TEXT(".png")), Size));
	};

	SetImage(TEXT("KyroCastellan.PluginTaskbarIcon"), TEXT("Logo/Logo_40x"), Icon40x40);
	SetImage(TEXT("KyroCastellan.PluginNotificationIcon"), TEXT("Logo/Logo_80x"), Icon80x80);
	SetImage(TEXT("KyroCastellan.WizardIcon_16x"), TEXT("Wizard/Wizard_16x"), Icon16x16);
	SetImage(TEXT("KyroCastellan.WizardIcon_128x"), TEXT("Wizard/Wizard_128x"), Icon128x128);

	SetImage(TEXT("ClassThumbnail.KyroCineCamCapture"), TEXT("ClassIcons/CineCapture_64x"), Icon64x64);
	SetImage(TEXT("ClassIcon.KyroCineCamCapture"), TEXT("ClassIcons/CineCapture_16x"), Icon16x16);
	SetImage(TEXT("ClassThumbnail.Kyro360CamCapture"), TEXT("ClassIcons/360Capture_64x"), Icon64x64);
	SetImage(TEXT("ClassIcon.Kyro360CamCapture"), TEXT("ClassIcons/360Capture_16x"), Icon16x16);
	SetImage(TEXT("ClassThumbnail.KyroSpoutSenderManager"), TEXT("ClassIcons/SpoutSender_64x"), Icon64x64);
	SetImage(TEXT("ClassIcon.KyroSpoutSenderManager"), TEXT("ClassIcons/SpoutSender_16x"), Icon16x16);
	SetImage(TEXT("ClassThumbnail.KyroSpoutReceiverManager"), TEXT("ClassIcons/SpoutReceiver_64x"), Icon64x64);
	SetImage(TEXT("ClassIcon.KyroSpoutReceiverManager"), TEXT("ClassIcons/SpoutReceiver_16x"), Icon16x16);
	// Sender and receiver managers share the NDI images.
	SetImage(TEXT("ClassThumbnail.KyroNDISenderManager"), TEXT("ClassIcons/NDI_64x"), Icon64x64);
	SetImage(TEXT("ClassIcon.KyroNDISenderManager"), TEXT("ClassIcons/NDI_16x"), Icon16x16);
	SetImage(TEXT("ClassThumbnail.KyroNDIReceiverManager"), TEXT("ClassIcons/NDI_64x"), Icon64x64);
	SetImage(TEXT("ClassIcon.KyroNDIReceiverManager"), TEXT("ClassIcons/NDI_16x"), Icon16x16);
	SetImage(TEXT("ClassThumbnail.KyroViewportCapture"), TEXT("ClassIcons/ViewportCapture_64x"), Icon64x64);
	SetImage(TEXT("ClassIcon.KyroViewportCapture"), TEXT("ClassIcons/ViewportCapture_16x"), Icon16x16);
	SetImage(TEXT("ClassThumbnail.KyroMediaOutput"), TEXT("ClassIcons/MediaOutput_64x"), Icon64x64);
	SetImage(TEXT("ClassIcon.KyroMediaOutput"), TEXT("ClassIcons/MediaOutput_16x"), Icon16x16);
	SetImage(TEXT("ClassThumbnail.KyroVirtualWebcamOutput"), TEXT("ClassIcons/VirtualCam_64x"), Icon64x64);
	SetImage(TEXT("ClassIcon.KyroVirtualWebcamOutput"), TEXT("ClassIcons/VirtualCam_16x"), Icon16x16);
	SetImage(TEXT("ClassThumbnail.KyroScreenCapture"), TEXT("ClassIcons/ScreenCapture_64x"), Icon64x64);
	SetImage(TEXT("ClassIcon.KyroScreenCapture"), TEXT("ClassIcons/ScreenCapture_16x"), Icon16x16);
	SetImage(TEXT("ClassThumbnail.KyroCGElement"), TEXT("ClassIcons/CGElement_64x"), Icon64x64);
	SetImage(TEXT("ClassIcon.KyroCGElement"), TEXT("ClassIcons/CGElement_16x"), Icon16x16);
	SetImage(TEXT("ClassThumbnail.KyroCGMatte"), TEXT("ClassIcons/CGMatte_64x"), Icon64x64);
	SetImage(TEXT("ClassIcon.KyroCGMatte"), TEXT("ClassIcons/CGMatte_16x"), Icon16x16);
	// The class is KyroVideoPlanePlacement; its images are named VideoPlacementPlane.
	SetImage(TEXT("ClassThumbnail.KyroVideoPlanePlacement"), TEXT("ClassIcons/VideoPlacementPlane_64x"), Icon64x64);
	SetImage(TEXT("ClassIcon.KyroVideoPlanePlacement"), TEXT("ClassIcons/VideoPlacementPlane_16x"), Icon16x16);

	return Style;
}
