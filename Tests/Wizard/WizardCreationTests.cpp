#include "AssetRegistry/AssetRegistryModule.h"
#include "AssetToolsModule.h"
#include "Editor.h"
#include "Engine/Level.h"
#include "Engine/TextureRenderTarget2D.h"
#include "HeadlessLevelEditor.h"
#include "IAssetTools.h"
#include "Kyro360CamCapture.h"
#include "Kyro360CaptureComponent.h"
#include "KyroCaptureComponent.h"
#include "KyroCineCamCapture.h"
#include "KyroMediaOutput.h"
#include "KyroNDISenderManager.h"
#include "KyroSpoutSenderManager.h"
#include "KyroViewportCapture.h"
#include "KyroVirtualWebcamOutput.h"
#include "LevelEditorViewport.h"
#include "Modules/ModuleManager.h"
#include "UObject/Package.h"
#include "WizardHarness.h"

#include <gtest/gtest.h>

namespace
{
	const TCHAR* const MediaOutputCaption = TEXT("Media Output (RTMP, SRT, MP4 etc.)");

	UTextureRenderTarget2D* FindTarget(const FString& Name)
	{
		return Cast<UTextureRenderTarget2D>(FLevelDriver::FindAsset(FString(TEXT("/Game/LivestreamWizard/")) + Name + TEXT(".") + Name));
	}
}

TEST(WizardCreation, StageMakesADirtyRenderTargetAndASelectedCineCamAtTheActiveCamera)
{
	FWizardHarness Harness;
	int32 AnnouncedToRegistry = 0;
	IAssetRegistry::GetChecked().OnInMemoryAssetCreated().AddLambda([&AnnouncedToRegistry](UObject*)
		{ ++AnnouncedToRegistry; });
	const int32 RedrawsBefore = UE::Headless::GetRedrawAllViewportsCount();

	Harness.Create(TEXT("Stage"), TEXT("Spout"));

	UTextureRenderTarget2D* Target = FindTarget(TEXT("Stage"));
	ASSERT_NE(Target, nullptr);
	EXPECT_EQ(FLevelDriver::GetAssets(TEXT("/Game")).Num(), 1);
	EXPECT_TRUE(FLevelDriver::IsPackageDirty(Target));
	EXPECT_EQ(Target->SizeX, 1);
	EXPECT_EQ(Target->RenderTargetFormat, RTF_RGBA16f);
	// The asset tools announce the asset, and the wizard announces it again.
	EXPECT_EQ(AnnouncedToRegistry, 2);

	const TArray<AKyroCineCamCapture*> Cameras = FLevelDriver::GetActorsOf<AKyroCineCamCapture>();
	ASSERT_EQ(Cameras.Num(), 1);
	EXPECT_EQ(Cameras[0]->CaptureComponent->TextureTarget.Get(), Target);
	const FLevelEditorViewportClient* Client = FLevelDriver::GetLevelViewportClient(0);
	EXPECT_EQ(Cameras[0]->GetActorLocation(), Client->GetViewLocation());
	EXPECT_EQ(Cameras[0]->GetActorRotation(), Client->GetViewRotation());
	EXPECT_EQ(FLevelDriver::GetSelectedActors(), TArray<AActor*>{Cameras[0]});
	EXPECT_TRUE(FLevelDriver::GetSelectedObjects().IsEmpty());
	EXPECT_EQ(UE::Headless::GetFloatingPropertyWindowsActors(), TArray<AActor*>{Cameras[0]});
	EXPECT_GT(UE::Headless::GetRedrawAllViewportsCount(), RedrawsBefore);
}

TEST(WizardCreation, TheCameraGoesToTheActiveViewportAndReplacesTheSelection)
{
	FHeadlessEditorOptions Options;
	FHeadlessLevelViewportOptions Second;
	Second.ViewLocation = FVector(120.0, -40.0, 300.0);
	Second.ViewRotation = FRotator(-30.0, 45.0, 0.0);
	Options.LevelViewports.Add(Second);
	Options.ActiveLevelViewport = 1;
	FWizardHarness Harness(Options);
	AActor* Earlier = FLevelDriver::GetEditorWorld()->SpawnActor<AKyroMediaOutput>();
	GEditor->SelectActor(Earlier, true, false);

	Harness.Create(TEXT("Stage"), TEXT("Spout"));

	const TArray<AKyroCineCamCapture*> Cameras = FLevelDriver::GetActorsOf<AKyroCineCamCapture>();
	ASSERT_EQ(Cameras.Num(), 1);
	EXPECT_EQ(Cameras[0]->GetActorLocation(), Second.ViewLocation);
	EXPECT_EQ(Cameras[0]->GetActorRotation(), Second.ViewRotation);
	EXPECT_EQ(FLevelDriver::GetSelectedActors(), TArray<AActor*>{Cameras[0]});
}

TEST(WizardCreation, EachCaptureTypeKeepsTheRenderTargetInItsOwnPlace)
{
	FWizardHarness Harness;

	Harness.PickCapture(TEXT("Kyro 360 Camera"));
	Harness.Create(TEXT("Round"), TEXT("Spout"));
	Harness.ClickRestart();
	Harness.PickCapture(TEXT("Kyro Viewport Capture"));
	Harness.Create(TEXT("Screen"), TEXT("Spout"));

	const TArray<AKyro360CamCapture*> Round = FLevelDriver::GetActorsOf<AKyro360CamCapture>();
	const TArray<AKyroViewportCapture*> Screen = FLevelDriver::GetActorsOf<AKyroViewportCapture>();
	ASSERT_EQ(Round.Num(), 1);
	ASSERT_EQ(Screen.Num(), 1);
	EXPECT_TRUE(FLevelDriver::GetActorsOf<AKyroCineCamCapture>().IsEmpty());
	EXPECT_EQ(Round[0]->CaptureComponent->TextureTarget.Get(), FindTarget(TEXT("Round")));
	EXPECT_EQ(Screen[0]->RenderTarget.Get(), FindTarget(TEXT("Screen")));
	const TArray<AKyroSpoutSenderManager*> Managers = FLevelDriver::GetActorsOf<AKyroSpoutSenderManager>();
	ASSERT_EQ(Managers.Num(), 1);
	ASSERT_EQ(Managers[0]->Senders.Num(), 2);
	EXPECT_EQ(Managers[0]->Senders[0].RenderTarget, FindTarget(TEXT("Round")));
	EXPECT_EQ(Managers[0]->Senders[1].RenderTarget, FindTarget(TEXT("Screen")));
}

TEST(WizardCreation, ATakenAssetNameIsMadeUniqueAndTheSendersTakeIt)
{
	FWizardHarness Harness;
	IAssetTools& AssetTools = FModuleManager::LoadModuleChecked<FAssetToolsModule>(TEXT("AssetTools")).Get();
	ASSERT_NE(AssetTools.CreateAsset(TEXT("Stage"), TEXT("/Game/LivestreamWizard"), UTextureRenderTarget2D::StaticClass(), nullptr), nullptr);
	Harness.Tick(TEXT("NDI"));

	Harness.Create(TEXT("Stage"), TEXT("Spout"));

	UTextureRenderTarget2D* Target = FindTarget(TEXT("Stage1"));
	ASSERT_NE(Target, nullptr);
	const AKyroSpoutSenderManager* Spout = FLevelDriver::GetActorsOf<AKyroSpoutSenderManager>()[0];
	const AKyroNDISenderManager* NDI = FLevelDriver::GetActorsOf<AKyroNDISenderManager>()[0];
	EXPECT_EQ(Spout->Senders[0].SenderName, FString(TEXT("Stage1")));
	EXPECT_EQ(NDI->Senders[0].SenderName, FString(TEXT("Stage1")));
	EXPECT_TRUE(Harness.GetDoneText()->GetText().ToString().Equals(TEXT("Livestream 'Stage' created!")));
}

TEST(WizardCreation, SpoutAndNDIEntriesCarryTheNameStandaloneNameAndTarget)
{
	FWizardHarness Harness;
	Harness.Tick(TEXT("NDI"));

	Harness.Create(TEXT("Main"), TEXT("Spout"));

	UTextureRenderTarget2D* Target = FindTarget(TEXT("Main"));
	const TArray<AKyroSpoutSenderManager*> Spout = FLevelDriver::GetActorsOf<AKyroSpoutSenderManager>();
	const TArray<AKyroNDISenderManager*> NDI = FLevelDriver::GetActorsOf<AKyroNDISenderManager>();
	ASSERT_EQ(Spout.Num(), 1);
	ASSERT_EQ(NDI.Num(), 1);
	ASSERT_EQ(Spout[0]->Senders.Num(), 1);
	ASSERT_EQ(NDI[0]->Senders.Num(), 1);
	const FKyroSpoutSenderInterface& SpoutEntry = Spout[0]->Senders[0];
	EXPECT_TRUE(SpoutEntry.bEnabled);
	EXPECT_TRUE(SpoutEntry.SenderName.Equals(TEXT("Main")));
	EXPECT_TRUE(SpoutEntry.StandaloneSenderName.Equals(TEXT("Main_Standalone")));
	EXPECT_EQ(SpoutEntry.RenderTarget, Target);
	const FKyroNDISenderInterface& NDIEntry = NDI[0]->Senders[0];
	EXPECT_TRUE(NDIEntry.bEnabled);
	EXPECT_TRUE(NDIEntry.bActive);
	EXPECT_TRUE(NDIEntry.SenderName.Equals(TEXT("Main")));
	EXPECT_TRUE(NDIEntry.StandaloneSenderName.Equals(TEXT("Main_Standalone")));
	EXPECT_EQ(NDIEntry.RenderTarget, Target);
	EXPECT_TRUE(FLevelDriver::GetActorsOf<AKyroMediaOutput>().IsEmpty());
	EXPECT_TRUE(FLevelDriver::GetActorsOf<AKyroVirtualWebcamOutput>().IsEmpty());
}

TEST(WizardCreation, TheFirstOfTwoManagersGetsTheEntryAndTheLevelIsDirtied)
{
	FWizardHarness Harness;
	AKyroSpoutSenderManager* First = FLevelDriver::GetEditorWorld()->SpawnActor<AKyroSpoutSenderManager>();
	AKyroSpoutSenderManager* Second = FLevelDriver::GetEditorWorld()->SpawnActor<AKyroSpoutSenderManager>();
	FLevelDriver::GetEditorWorld()->GetOutermost()->SetDirtyFlag(false);
	int32 LevelDirtied = 0;
	const FDelegateHandle Handle = ULevel::LevelDirtiedEvent.AddLambda([&LevelDirtied]()
		{ ++LevelDirtied; });

	Harness.Create(TEXT("Main"), TEXT("Spout"));
	ULevel::LevelDirtiedEvent.Remove(Handle);

	EXPECT_EQ(First->Senders.Num(), 1);
	EXPECT_EQ(Second->Senders.Num(), 0);
	EXPECT_EQ(FLevelDriver::GetActorsOf<AKyroSpoutSenderManager>().Num(), 2);
	EXPECT_EQ(LevelDirtied, 1);
	EXPECT_TRUE(FLevelDriver::IsPackageDirty(FLevelDriver::GetEditorWorld()));
	EXPECT_TRUE(FLevelDriver::GetLastTransaction()->ContainsObject(First));
}

TEST(WizardCreation, MediaOutputAndWebcamAreNewActorsAtTheOriginShowingTheTarget)
{
	FWizardHarness Harness;
	Harness.Tick(TEXT("Virtual Webcam"));

	Harness.Create(TEXT("Show"), MediaOutputCaption);

	UTextureRenderTarget2D* Target = FindTarget(TEXT("Show"));
	const TArray<AKyroMediaOutput*> Media = FLevelDriver::GetActorsOf<AKyroMediaOutput>();
	const TArray<AKyroVirtualWebcamOutput*> Webcams = FLevelDriver::GetActorsOf<AKyroVirtualWebcamOutput>();
	ASSERT_EQ(Media.Num(), 1);
	ASSERT_EQ(Webcams.Num(), 1);
	EXPECT_EQ(Media[0]->RenderTarget.Get(), Target);
	EXPECT_EQ(Webcams[0]->RenderTarget.Get(), Target);
	EXPECT_EQ(Media[0]->GetActorLocation(), FVector::ZeroVector);
	EXPECT_EQ(Webcams[0]->GetActorLocation(), FVector::ZeroVector);
	EXPECT_TRUE(FLevelDriver::GetActorsOf<AKyroSpoutSenderManager>().IsEmpty());
	EXPECT_TRUE(FLevelDriver::GetActorsOf<AKyroNDISenderManager>().IsEmpty());
}

TEST(WizardCreation, TheWholeSetupIsOneUndoStepThatRemovesWhatItAddedToTheLevel)
{
	FWizardHarness Harness;
	AKyroSpoutSenderManager* Existing = FLevelDriver::GetEditorWorld()->SpawnActor<AKyroSpoutSenderManager>();
	const TArray<AActor*> ActorsBefore = FLevelDriver::GetActors();
	Harness.Tick(TEXT("NDI"));
	Harness.Tick(MediaOutputCaption);
	Harness.Tick(TEXT("Virtual Webcam"));

	Harness.Create(TEXT("Stage"), TEXT("Spout"));

	UTransactor* History = FLevelDriver::GetTransactionHistory();
	ASSERT_EQ(History->GetQueueLength(), 1);
	const FTransaction* Transaction = History->GetTransaction(0);
	EXPECT_EQ(Transaction->GetTitle().ToString(), FString(TEXT("Create Setup")));
	EXPECT_EQ(FLevelDriver::GetActors().Num(), ActorsBefore.Num() + 4);
	EXPECT_EQ(Existing->Senders.Num(), 1);

	EXPECT_TRUE(FLevelDriver::Undo());

	EXPECT_EQ(FLevelDriver::GetActors(), ActorsBefore);
	EXPECT_EQ(Existing->Senders.Num(), 0);
	EXPECT_TRUE(FLevelDriver::GetSelectedActors().IsEmpty());
}

TEST(WizardCreation, WithoutAnActiveViewportNothingIsCreated)
{
	FHeadlessEditorOptions Options;
	Options.ActiveLevelViewport = INDEX_NONE;
	FWizardHarness Harness(Options);

	Harness.Create(TEXT("Stage"), TEXT("Spout"));

	EXPECT_TRUE(Harness.IsDonePageShown());
	EXPECT_TRUE(FLevelDriver::GetActors().IsEmpty());
	EXPECT_TRUE(FLevelDriver::GetAssets(TEXT("/Game")).IsEmpty());
	EXPECT_EQ(FLevelDriver::GetTransactionHistory()->GetQueueLength(), 0);
}
