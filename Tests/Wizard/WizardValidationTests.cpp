#include "GameFramework/Actor.h"
#include "KyroSpoutSenderManager.h"
#include "LevelDriver.h"
#include "WizardHarness.h"

#include <gtest/gtest.h>

namespace
{
	const FString OutputWarning(TEXT("! Select at least one output type."));
	const FString EmptyNameWarning(TEXT("! LivestreamWizard Name cannot be empty."));
	const FString DuplicateWarning(TEXT("! Livestream name already defined, please use a differnt name."));

	/** Creates a setup with Name through the wizard, then goes back to a clean creator page. */
	void CreateAndRestart(const FWizardHarness& Harness, const FString& Name, const TCHAR* Output)
	{
		Harness.Create(Name, Output);
		ASSERT_TRUE(Harness.IsDonePageShown());
		Harness.ClickRestart();
	}
}

TEST(WizardValidation, NoOutputAndAnEmptyNameShowBothWarningsAndCreateNothing)
{
	FWizardHarness Harness;

	EXPECT_TRUE(Harness.ClickCreate());

	EXPECT_EQ(Harness.GetOutputWarning()->GetText().ToString(), OutputWarning);
	EXPECT_EQ(Harness.GetNameWarning()->GetText().ToString(), EmptyNameWarning);
	EXPECT_TRUE(Harness.IsCreatorPageShown());
	EXPECT_FALSE(Harness.IsDonePageShown());
	EXPECT_TRUE(FLevelDriver::GetActors().IsEmpty());
	EXPECT_TRUE(FLevelDriver::GetAssets(TEXT("/Game")).IsEmpty());
	EXPECT_EQ(FLevelDriver::GetTransactionHistory()->GetQueueLength(), 0);
}

TEST(WizardValidation, AWhiteSpaceNameIsRefusedAsEmpty)
{
	FWizardHarness Harness;
	Harness.Tick(TEXT("Spout"));
	Harness.SetName(TEXT(" \t  "));

	Harness.ClickCreate();

	EXPECT_EQ(Harness.GetOutputWarning()->GetText().ToString(), FString());
	EXPECT_EQ(Harness.GetNameWarning()->GetText().ToString(), EmptyNameWarning);
	EXPECT_TRUE(Harness.IsCreatorPageShown());
	EXPECT_TRUE(FLevelDriver::GetActors().IsEmpty());
}

TEST(WizardValidation, ANameOfASpoutSenderIsRefusedWhateverItsCase)
{
	FWizardHarness Harness;
	CreateAndRestart(Harness, TEXT("Main"), TEXT("Spout"));
	const int32 ActorsBefore = FLevelDriver::GetActors().Num();

	Harness.Create(TEXT("MAIN"), TEXT("Media Output (RTMP, SRT, MP4 etc.)"));

	EXPECT_EQ(Harness.GetNameWarning()->GetText().ToString(), DuplicateWarning);
	EXPECT_EQ(Harness.GetOutputWarning()->GetText().ToString(), FString());
	EXPECT_TRUE(Harness.IsCreatorPageShown());
	EXPECT_EQ(FLevelDriver::GetActors().Num(), ActorsBefore);
}

TEST(WizardValidation, ANameOfASpoutStandaloneSenderIsRefused)
{
	FWizardHarness Harness;
	CreateAndRestart(Harness, TEXT("Main"), TEXT("Spout"));

	Harness.Create(TEXT("main_standalone"), TEXT("NDI"));

	EXPECT_EQ(Harness.GetNameWarning()->GetText().ToString(), DuplicateWarning);
	EXPECT_TRUE(Harness.IsCreatorPageShown());
}

TEST(WizardValidation, ANameHeldOnlyByAnNDISenderIsAccepted)
{
	FWizardHarness Harness;
	CreateAndRestart(Harness, TEXT("Main"), TEXT("NDI"));

	Harness.Create(TEXT("Main"), TEXT("Spout"));

	EXPECT_TRUE(Harness.IsDonePageShown());
	EXPECT_EQ(Harness.GetNameWarning()->GetText().ToString(), FString());
}

TEST(WizardValidation, ANameIsComparedAsTypedWithItsSurroundingBlanks)
{
	FWizardHarness Harness;
	CreateAndRestart(Harness, TEXT("Main"), TEXT("Spout"));

	Harness.Create(TEXT("Main "), TEXT("Spout"));

	EXPECT_TRUE(Harness.IsDonePageShown());
}

TEST(WizardValidation, ADuplicateInASecondSpoutManagerIsFound)
{
	FWizardHarness Harness;
	UWorld* World = FLevelDriver::GetEditorWorld();
	World->SpawnActor<AKyroSpoutSenderManager>();
	AKyroSpoutSenderManager* Second = World->SpawnActor<AKyroSpoutSenderManager>();
	FKyroSpoutSenderInterface Entry;
	Entry.SenderName = TEXT("Other");
	Entry.StandaloneSenderName = TEXT("Other_Standalone");
	Second->Senders.Add(Entry);

	Harness.Create(TEXT("other"), TEXT("Spout"));

	EXPECT_EQ(Harness.GetNameWarning()->GetText().ToString(), DuplicateWarning);
}

TEST(WizardValidation, AValidSecondAttemptClearsBothWarnings)
{
	FWizardHarness Harness;
	Harness.ClickCreate();
	ASSERT_EQ(Harness.GetOutputWarning()->GetText().ToString(), OutputWarning);

	Harness.Create(TEXT("Stage"), TEXT("Virtual Webcam"));

	EXPECT_TRUE(Harness.GetOutputWarning()->GetText().IsEmpty());
	EXPECT_TRUE(Harness.GetNameWarning()->GetText().IsEmpty());
	EXPECT_TRUE(Harness.IsDonePageShown());
}
