#include "RuntimeControls.h"
#include "Styling/CoreStyle.h"
#include "WizardHarness.h"

#include <gtest/gtest.h>

namespace
{
	void ExpectLabelStyle(const TSharedRef<STextBlock>& Label)
	{
		EXPECT_TRUE(FWidgetDriver::GetFont(*Label).IsIdenticalTo(FCoreStyle::GetDefaultFontStyle("Regular", 10)));
		EXPECT_EQ(FWidgetDriver::GetColor(*Label).GetSpecifiedColor(), FLinearColor(0.5f, 0.5f, 0.5f, 1.0f));
	}

	void ExpectWarningStyle(const TSharedRef<STextBlock>& Warning)
	{
		EXPECT_TRUE(FWidgetDriver::GetFont(*Warning).IsIdenticalTo(FCoreStyle::GetDefaultFontStyle("Italic", 8)));
		EXPECT_EQ(FWidgetDriver::GetColor(*Warning).GetSpecifiedColor(), FLinearColor::Red);
	}

	TSharedRef<STextBlock> FindText(const FWizardHarness& Harness, const TCHAR* Text)
	{
		return FWidgetDriver::Find<STextBlock>(Harness.Wizard, TEXT("STextBlock"), FString(Text)).ToSharedRef();
	}
}

TEST(WizardLayout, AFreshWizardShowsTheCreatorPageWithItsDefaults)
{
	FWizardHarness Harness;

	EXPECT_TRUE(Harness.IsCreatorPageShown());
	EXPECT_FALSE(Harness.IsDonePageShown());
	EXPECT_TRUE(Harness.GetSelectedCapture().Equals(TEXT("Kyro Cinecam")));
	for (const TCHAR* Caption : {TEXT("Spout"), TEXT("NDI"), TEXT("Media Output (RTMP, SRT, MP4 etc.)"), TEXT("Virtual Webcam")})
	{
		EXPECT_FALSE(Harness.GetOutput(Caption)->IsChecked()) << Caption;
	}
	EXPECT_TRUE(Harness.GetNameBox()->GetText().IsEmpty());
	EXPECT_TRUE(Harness.GetOutputWarning()->GetText().IsEmpty());
	EXPECT_TRUE(Harness.GetNameWarning()->GetText().IsEmpty());
}

TEST(WizardLayout, LabelsAreGreyAndWarningsRedAndItalic)
{
	FWizardHarness Harness;

	ExpectLabelStyle(FindText(Harness, TEXT("1. Select Capture Type:")));
	ExpectLabelStyle(FindText(Harness, TEXT("2. Select Output Type:")));
	ExpectLabelStyle(FindText(Harness, TEXT("3. Set Livestream Name:")));
	EXPECT_TRUE(FWidgetDriver::GetFont(*FindText(Harness, TEXT("Livestream Wizard"))).IsIdenticalTo(FCoreStyle::GetDefaultFontStyle("Regular", 19)));

	// The warnings show only once Create finds something missing.
	Harness.ClickCreate();
	ExpectWarningStyle(Harness.GetOutputWarning());
	ExpectWarningStyle(Harness.GetNameWarning());
}

TEST(WizardLayout, TheDonePageReportsInALargerFont)
{
	FWizardHarness Harness;
	Harness.Create(TEXT("Stage"), TEXT("Spout"));

	EXPECT_TRUE(FWidgetDriver::GetFont(*Harness.GetDoneText()).IsIdenticalTo(FCoreStyle::GetDefaultFontStyle("Regular", 12)));
}

TEST(WizardLayout, APlaySessionDisablesCreateUntilItEnds)
{
	FHeadlessEditorOptions Options;
	Options.bPlaySessionRunning = true;
	FWizardHarness Harness(Options);

	EXPECT_FALSE(FWidgetDriver::IsEffectivelyEnabled(Harness.GetCreateButton()));
	Harness.Session.EndPlaySession();
	EXPECT_TRUE(FWidgetDriver::IsEffectivelyEnabled(Harness.GetCreateButton()));
}

TEST(WizardLayout, TheHeaderStaysOnTheDonePage)
{
	FWizardHarness Harness;
	Harness.Create(TEXT("Stage"), TEXT("Spout"));

	EXPECT_TRUE(FWidgetDriver::IsShown(FindText(Harness, TEXT("Livestream Wizard"))));
	EXPECT_TRUE(FWidgetDriver::IsShown(FindText(Harness, TEXT("Set up a live-stream from an Kyro Cinecam, Kyro 360 Camera or Kyro Viewport Capture"))));
	EXPECT_FALSE(FWidgetDriver::IsShown(FindText(Harness, TEXT("1. Select Capture Type:"))));
}

TEST(WizardLayout, ConstructionTellsTheRuntimeTheWizardOpened)
{
	FHeadlessEditorSession Session;
	const int32 Before = HeadlessRuntime::GetWizardEditorOpenedCount();

	SNew(SLivestreamWizard);

	EXPECT_EQ(HeadlessRuntime::GetWizardEditorOpenedCount(), Before + 1);
}

TEST(WizardLayoutDeathTest, AnEmptyCaptureSelectionIsFatal)
{
	EXPECT_DEATH(
		{
			FWizardHarness Harness;
			Harness.GetCombo()->ClearSelection();
			Harness.Create(TEXT("Stage"), TEXT("Spout"));
		},
		"Assertion failed: SelectedItem.IsValid");
}
