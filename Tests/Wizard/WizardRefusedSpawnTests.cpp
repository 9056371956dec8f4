#include "AssetRegistry/IAssetRegistry.h"
#include "Editor.h"
#include "Editor/Transactor.h"
#include "HeadlessWorld.h"
#include "Kyro360CamCapture.h"
#include "KyroCineCamCapture.h"
#include "KyroMediaOutput.h"
#include "KyroNDISenderManager.h"
#include "KyroSpoutSenderManager.h"
#include "KyroViewportCapture.h"
#include "KyroVirtualWebcamOutput.h"
#include "Selection.h"
#include "Styling/SlateColor.h"
#include "WizardHarness.h"

#include <gtest/gtest.h>
#include <ostream>

namespace
{
	const TCHAR* const OutputCaptions[] = {TEXT("Spout"), TEXT("NDI"), TEXT("Media Output (RTMP, SRT, MP4 etc.)"), TEXT("Virtual Webcam")};

	/** A class the world refuses, and the capture type the wizard is set to. */
	struct FRefusal
	{
		const char* TestName;
		UClass* (*GetRefusedClass)();
		const TCHAR* CaptureType;
	};

	/** Names the refused class in test listings rather than dumping the struct's bytes. */
	void PrintTo(const FRefusal& Refusal, std::ostream* Stream)
	{
		*Stream << Refusal.TestName;
	}

	const FRefusal Refusals[] = {
		{"CineCam", &AKyroCineCamCapture::StaticClass, TEXT("Kyro Cinecam")},
		{"ThreeSixtyCam", &AKyro360CamCapture::StaticClass, TEXT("Kyro 360 Camera")},
		{"ViewportCapture", &AKyroViewportCapture::StaticClass, TEXT("Kyro Viewport Capture")},
		{"SpoutSenderManager", &AKyroSpoutSenderManager::StaticClass, TEXT("Kyro Cinecam")},
		{"NDISenderManager", &AKyroNDISenderManager::StaticClass, TEXT("Kyro 360 Camera")},
		{"MediaOutput", &AKyroMediaOutput::StaticClass, TEXT("Kyro Viewport Capture")},
		{"VirtualWebcamOutput", &AKyroVirtualWebcamOutput::StaticClass, TEXT("Kyro Cinecam")},
	};

	/** Picks the capture type, ticks every output and creates "Stage". */
	void CreateWithEveryOutput(const FWizardHarness& Harness, const TCHAR* CaptureType)
	{
		Harness.PickCapture(CaptureType);
		for (const TCHAR* Caption : OutputCaptions)
		{
			Harness.Tick(Caption);
		}
		Harness.SetName(TEXT("Stage"));
		ASSERT_TRUE(Harness.ClickCreate());
	}

	class WizardRefusedSpawn : public ::testing::TestWithParam<FRefusal>
	{
	protected:
		virtual void TearDown() override { UE::Headless::SetRefusedSpawnClass(nullptr); }

		/** The done page reports the failure in red, and the editor holds nothing of the attempt. */
		void ExpectNothingLeft(const TArray<AActor*>& ActorsBefore, const TArray<UObject*>& AssetsBefore = {}, int32 UndoStepsBefore = 0) const
		{
			EXPECT_TRUE(Harness.IsDonePageShown());
			EXPECT_TRUE(Harness.GetDoneText()->GetText().ToString().Equals(TEXT("ERROR: Failed to create Livestream 'Stage'!")));
			EXPECT_EQ(FWidgetDriver::GetColor(*Harness.GetDoneText()).GetSpecifiedColor(), FLinearColor::Red);
			EXPECT_TRUE(Harness.GetDoneButtonText()->GetText().ToString().Equals(TEXT("Try Again")));
			EXPECT_EQ(FLevelDriver::GetActors(), ActorsBefore);
			EXPECT_EQ(FLevelDriver::GetAssets(TEXT("/Game")), AssetsBefore);
			EXPECT_EQ(FLevelDriver::GetTransactionHistory()->GetQueueLength(), UndoStepsBefore);
			// The selection does not even hold the destroyed capture actor.
			EXPECT_EQ(GEditor->GetSelectedActors()->Num(), 0);
		}

		FWizardHarness Harness;
	};
}

TEST_P(WizardRefusedSpawn, ARefusedSpawnLeavesNothingAndShowsTheError)
{
	UE::Headless::SetRefusedSpawnClass(GetParam().GetRefusedClass());

	CreateWithEveryOutput(Harness, GetParam().CaptureType);

	ExpectNothingLeft({});
}

TEST_P(WizardRefusedSpawn, ARefusedSpawnLeavesTheLevelsManagersAsTheyWere)
{
	AKyroSpoutSenderManager* Spout = FLevelDriver::GetEditorWorld()->SpawnActor<AKyroSpoutSenderManager>();
	AKyroNDISenderManager* NDI = FLevelDriver::GetEditorWorld()->SpawnActor<AKyroNDISenderManager>();
	const TArray<AActor*> ActorsBefore = FLevelDriver::GetActors();
	UE::Headless::SetRefusedSpawnClass(GetParam().GetRefusedClass());

	CreateWithEveryOutput(Harness, GetParam().CaptureType);

	const bool bManagerRefused = GetParam().GetRefusedClass() == AKyroSpoutSenderManager::StaticClass() || GetParam().GetRefusedClass() == AKyroNDISenderManager::StaticClass();
	if (bManagerRefused)
	{
		// The level has its managers, so nothing of the refused class needs spawning.
		EXPECT_TRUE(Harness.GetDoneText()->GetText().ToString().Equals(TEXT("Livestream 'Stage' created!")));
		EXPECT_EQ(Spout->Senders.Num(), 1);
		EXPECT_EQ(NDI->Senders.Num(), 1);
	}
	else
	{
		ExpectNothingLeft(ActorsBefore);
		EXPECT_TRUE(Spout->Senders.IsEmpty());
		EXPECT_TRUE(NDI->Senders.IsEmpty());
	}
}

TEST_P(WizardRefusedSpawn, TryingAgainOnceTheWorldAcceptsCreatesUnderTheSameName)
{
	UE::Headless::SetRefusedSpawnClass(GetParam().GetRefusedClass());
	CreateWithEveryOutput(Harness, GetParam().CaptureType);
	UE::Headless::SetRefusedSpawnClass(nullptr);
	ASSERT_TRUE(Harness.ClickRestart());

	CreateWithEveryOutput(Harness, GetParam().CaptureType);

	EXPECT_TRUE(Harness.GetDoneText()->GetText().ToString().Equals(TEXT("Livestream 'Stage' created!")));
	// No render target was left by the refused attempt, so the name is still free.
	EXPECT_NE(FLevelDriver::FindAsset(TEXT("/Game/LivestreamWizard/Stage.Stage")), nullptr);
	EXPECT_EQ(FLevelDriver::GetAssets(TEXT("/Game")).Num(), 1);
	EXPECT_EQ(FLevelDriver::GetActors().Num(), 5);
	EXPECT_EQ(FLevelDriver::GetTransactionHistory()->GetQueueLength(), 1);
}

TEST_F(WizardRefusedSpawn, ARefusedOutputAfterAnEntryInAnExistingManagerLeavesItsEntriesAndTheEarlierSetup)
{
	Harness.Create(TEXT("Main"), TEXT("Spout"));
	ASSERT_TRUE(Harness.ClickRestart());
	AKyroSpoutSenderManager* Spout = FLevelDriver::GetActorsOf<AKyroSpoutSenderManager>()[0];
	const TArray<FKyroSpoutSenderInterface> EntriesBefore = Spout->Senders;
	const TArray<AActor*> ActorsBefore = FLevelDriver::GetActors();
	const TArray<UObject*> AssetsBefore = FLevelDriver::GetAssets(TEXT("/Game"));
	TArray<FString> Deleted;
	const FDelegateHandle Handle = IAssetRegistry::GetChecked().OnInMemoryAssetDeleted().AddLambda([&Deleted](UObject* Asset)
		{ Deleted.Add(Asset->GetPathName()); });
	// The webcam is the last output: the Spout entry, the NDI manager and the media output are made before it fails.
	UE::Headless::SetRefusedSpawnClass(AKyroVirtualWebcamOutput::StaticClass());

	CreateWithEveryOutput(Harness, TEXT("Kyro Cinecam"));
	IAssetRegistry::GetChecked().OnInMemoryAssetDeleted().Remove(Handle);

	ExpectNothingLeft(ActorsBefore, AssetsBefore, 1);
	ASSERT_EQ(Spout->Senders.Num(), EntriesBefore.Num());
	EXPECT_TRUE(Spout->Senders[0].SenderName.Equals(TEXT("Main")));
	EXPECT_EQ(Spout->Senders[0].RenderTarget, EntriesBefore[0].RenderTarget);
	EXPECT_EQ(Deleted, TArray<FString>{TEXT("/Game/LivestreamWizard/Stage.Stage")});
	EXPECT_EQ(FLevelDriver::FindAsset(TEXT("/Game/LivestreamWizard/Stage.Stage")), nullptr);

	// The earlier create is still the one undo step, and undoes as it did.
	EXPECT_TRUE(FLevelDriver::Undo());
	EXPECT_TRUE(FLevelDriver::GetActors().IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(EachSpawn, WizardRefusedSpawn, ::testing::ValuesIn(Refusals), [](const ::testing::TestParamInfo<FRefusal>& Info)
	{ return std::string(Info.param.TestName); });
