#include "KyroCineCamCapture.h"
#include "KyroNDISenderManager.h"
#include "KyroSpoutSenderManager.h"
#include "Styling/SlateColor.h"
#include "WizardHarness.h"

#include <gtest/gtest.h>

namespace
{
	FLinearColor GetColour(const TSharedRef<STextBlock>& TextBlock)
	{
		return FWidgetDriver::GetColor(*TextBlock).GetSpecifiedColor();
	}
}

TEST(WizardFlow, ASuccessfulCreateShowsTheDonePageInWhite)
{
	FWizardHarness Harness;

	Harness.Create(TEXT("Stage"), TEXT("Spout"));

	EXPECT_TRUE(Harness.IsDonePageShown());
	EXPECT_FALSE(Harness.IsCreatorPageShown());
	EXPECT_TRUE(Harness.GetDoneText()->GetText().ToString().Equals(TEXT("Livestream 'Stage' created!")));
	EXPECT_EQ(GetColour(Harness.GetDoneText()), FLinearColor::White);
	EXPECT_TRUE(Harness.GetDoneButtonText()->GetText().ToString().Equals(TEXT("Create Another Livestream")));
}

TEST(WizardFlow, AFailedCreateShowsTheErrorInRedAndOffersToTryAgain)
{
	FHeadlessEditorOptions Options;
	Options.ActiveLevelViewport = INDEX_NONE;
	FWizardHarness Harness(Options);

	Harness.Create(TEXT("Stage"), TEXT("Spout"));

	EXPECT_TRUE(Harness.IsDonePageShown());
	EXPECT_TRUE(Harness.GetDoneText()->GetText().ToString().Equals(TEXT("ERROR: Failed to create Livestream 'Stage'!")));
	EXPECT_EQ(GetColour(Harness.GetDoneText()), FLinearColor::Red);
	EXPECT_TRUE(Harness.GetDoneButtonText()->GetText().ToString().Equals(TEXT("Try Again")));
}

TEST(WizardFlow, RestartResetsTheInputsButKeepsTheWarnings)
{
	FWizardHarness Harness;
	Harness.PickCapture(TEXT("Kyro 360 Camera"));
	Harness.Tick(TEXT("NDI"));
	Harness.Tick(TEXT("Media Output (RTMP, SRT, MP4 etc.)"));
	Harness.Tick(TEXT("Virtual Webcam"));
	Harness.Create(TEXT("Main"), TEXT("Spout"));
	// Enter on the done page validates the inputs still held: "Main" is now a Spout sender.
	EXPECT_TRUE(Harness.PressKeyOnWizard(EKeys::Enter).IsEventHandled());
	ASSERT_TRUE(Harness.IsDonePageShown());
	const FString Warning = Harness.GetNameWarning()->GetText().ToString();
	ASSERT_FALSE(Warning.IsEmpty());
	const TCHAR* const Captions[] = {TEXT("Spout"), TEXT("NDI"), TEXT("Media Output (RTMP, SRT, MP4 etc.)"), TEXT("Virtual Webcam")};
	for (const TCHAR* Caption : Captions)
	{
		ASSERT_TRUE(Harness.GetOutput(Caption)->IsChecked()) << Caption;
	}

	EXPECT_TRUE(Harness.ClickRestart());

	EXPECT_TRUE(Harness.IsCreatorPageShown());
	EXPECT_TRUE(Harness.GetSelectedCapture().Equals(TEXT("Kyro Cinecam")));
	for (const TCHAR* Caption : Captions)
	{
		EXPECT_FALSE(Harness.GetOutput(Caption)->IsChecked()) << Caption;
	}
	EXPECT_TRUE(Harness.GetNameBox()->GetText().IsEmpty());
	EXPECT_TRUE(Harness.GetNameWarning()->GetText().ToString().Equals(Warning));
	EXPECT_FALSE(Harness.GetDoneText()->GetText().IsEmpty());
}

TEST(WizardFlow, AnEnterReachingTheWizardCreatesLikeTheButton)
{
	FWizardHarness Harness;
	Harness.Tick(TEXT("Spout"));
	Harness.SetName(TEXT("Stage"));

	const FReply Reply = Harness.PressKeyOnWizard(EKeys::Enter);

	EXPECT_TRUE(Reply.IsEventHandled());
	EXPECT_TRUE(Harness.IsDonePageShown());
	EXPECT_EQ(FLevelDriver::GetActorsOf<AKyroCineCamCapture>().Num(), 1);
}

TEST(WizardFlow, TheNameBoxKeepsItsEnterToItself)
{
	FWizardHarness Harness;
	Harness.Tick(TEXT("Spout"));
	Harness.SetName(TEXT("Stage"));

	FWidgetDriver::PressKey(Harness.GetNameBox(), EKeys::Enter);

	EXPECT_TRUE(Harness.IsCreatorPageShown());
	EXPECT_TRUE(FLevelDriver::GetActors().IsEmpty());
}

TEST(WizardFlow, OtherKeysPassThroughUnhandled)
{
	FWizardHarness Harness;
	Harness.Tick(TEXT("Spout"));
	Harness.SetName(TEXT("Stage"));

	EXPECT_FALSE(Harness.PressKeyOnWizard(EKeys::A).IsEventHandled());
	EXPECT_FALSE(Harness.PressKeyOnWizard(EKeys::Escape).IsEventHandled());
	EXPECT_FALSE(FWidgetDriver::PressKey(Harness.GetOutput(TEXT("NDI")), EKeys::A));

	EXPECT_TRUE(Harness.IsCreatorPageShown());
	EXPECT_TRUE(FLevelDriver::GetActors().IsEmpty());
	EXPECT_TRUE(Harness.GetNameWarning()->GetText().IsEmpty());
}

TEST(WizardFlow, EnterCreatesEvenWhileAPlaySessionDisablesTheButton)
{
	FHeadlessEditorOptions Options;
	Options.bPlaySessionRunning = true;
	FWizardHarness Harness(Options);
	Harness.Tick(TEXT("Spout"));
	Harness.SetName(TEXT("Stage"));
	ASSERT_FALSE(Harness.ClickCreate());

	EXPECT_TRUE(Harness.PressKeyOnWizard(EKeys::Enter).IsEventHandled());

	EXPECT_TRUE(Harness.IsDonePageShown());
	EXPECT_EQ(FLevelDriver::GetActorsOf<AKyroCineCamCapture>().Num(), 1);
}

TEST(WizardFlow, EnterOnTheDonePageCreatesAgainFromTheHeldInputs)
{
	FWizardHarness Harness;
	Harness.Create(TEXT("Stage"), TEXT("NDI"));

	EXPECT_TRUE(Harness.PressKeyOnWizard(EKeys::Enter).IsEventHandled());

	EXPECT_TRUE(Harness.IsDonePageShown());
	EXPECT_EQ(FLevelDriver::GetActorsOf<AKyroCineCamCapture>().Num(), 2);
	const TArray<AKyroNDISenderManager*> Managers = FLevelDriver::GetActorsOf<AKyroNDISenderManager>();
	ASSERT_EQ(Managers.Num(), 1);
	ASSERT_EQ(Managers[0]->Senders.Num(), 2);
	EXPECT_TRUE(Managers[0]->Senders[1].SenderName.Equals(TEXT("Stage1")));
	EXPECT_EQ(FLevelDriver::GetTransactionHistory()->GetQueueLength(), 2);
}
