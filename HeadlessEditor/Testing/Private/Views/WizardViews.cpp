#include "Views/WizardViews.h"

#include "HeadlessEditorSession.h"
#include "LivestreamWizardDriver.h"
#include "Widgets/Docking/SDockTab.h"

namespace
{
	const TCHAR* const CaptureOption = TEXT("capture");
	const TCHAR* const OutputOption = TEXT("output");
	const TCHAR* const NameOption = TEXT("name");

	FEditorViewOption MakeCaptureOption()
	{
		return {CaptureOption, TEXT("TYPE"), TEXT("the capture type to pick; the wizard's own first one when not given"), {TEXT("Kyro Cinecam"), TEXT("Kyro 360 Camera"), TEXT("Kyro Viewport Capture")}, {}, false};
	}

	FEditorViewOption MakeOutputOption(const TArray<FString>& Defaults)
	{
		return {OutputOption, TEXT("OUTPUT"), TEXT("an output to tick; give it again for more"), {TEXT("Spout"), TEXT("NDI"), TEXT("Media Output (RTMP, SRT, MP4 etc.)"), TEXT("Virtual Webcam")}, Defaults, true};
	}

	FEditorViewOption MakeNameOption(const FString& Help, const TArray<FString>& Defaults)
	{
		return {NameOption, TEXT("NAME"), Help, {}, Defaults, false};
	}

	/** What to fill in: the capture type alone, for a view that leaves the rest empty. */
	FLivestreamWizardInputs ReadCapture(const FEditorViewArguments& Arguments)
	{
		FLivestreamWizardInputs Inputs;
		Inputs.Capture = Arguments.GetValue(CaptureOption);
		return Inputs;
	}

	FLivestreamWizardInputs ReadInputs(const FEditorViewArguments& Arguments)
	{
		FLivestreamWizardInputs Inputs = ReadCapture(Arguments);
		Inputs.Outputs = Arguments.GetValues(OutputOption);
		Inputs.Name = Arguments.GetValue(NameOption);
		return Inputs;
	}

	FString DescribeResult(const FLivestreamWizardResult& Result)
	{
		switch (Result.Outcome)
		{
			case ELivestreamWizardOutcome::Created:
				return FString::Printf(TEXT("the wizard created the livestream; it shows \"%s\""), *Result.DoneText);
			case ELivestreamWizardOutcome::Failed:
				return FString::Printf(TEXT("the wizard failed to create the livestream; it shows \"%s\""), *Result.DoneText);
			default:
				return TEXT("the wizard refused to create the livestream; it shows \"") + FString::Join(Result.Warnings, TEXT("\", \"")) + TEXT("\"");
		}
	}

	/** The tab opened from the toolbar and filled in, in a new editor session. */
	FShownEditorView ShowFilledIn(const FEditorViewArguments& Arguments)
	{
		TUniquePtr<FHeadlessEditorSession> Session = MakeUnique<FHeadlessEditorSession>();
		const TSharedRef<SDockTab> Tab = FLivestreamWizardDriver::OpenFromToolbar();
		FLivestreamWizardDriver::FillIn(Tab->GetContent(), ReadInputs(Arguments));
		return FShownEditorView(MoveTemp(Session), Tab, FLivestreamWizardDriver::GetDockedTabSize());
	}

	/** The tab after filling it in and pressing Create; a problem unless the wizard came to the Expected outcome. */
	FShownEditorView ShowAfterCreate(const FLivestreamWizardInputs& Inputs, ELivestreamWizardOutcome Expected, const TCHAR* ExpectedState)
	{
		TUniquePtr<FHeadlessEditorSession> Session = MakeUnique<FHeadlessEditorSession>();
		const TSharedRef<SDockTab> Tab = FLivestreamWizardDriver::OpenFromToolbar();
		FLivestreamWizardDriver::FillIn(Tab->GetContent(), Inputs);
		FLivestreamWizardDriver::PressCreate(Tab->GetContent());
		const FLivestreamWizardResult Result = FLivestreamWizardDriver::ReadResult(Tab->GetContent());
		const FString Problem = Result.Outcome == Expected ? FString() : FString::Printf(TEXT("this view shows %s, but %s"), ExpectedState, *DescribeResult(Result));
		return FShownEditorView(MoveTemp(Session), Tab, FLivestreamWizardDriver::GetDockedTabSize(), Problem);
	}
}

TArray<FEditorView> MakeLivestreamWizardViews()
{
	TArray<FEditorView> Views;
	Views.Add({TEXT("wizard"), TEXT("the Livestream Wizard tab as it opens from the toolbar, or filled in before Create"),
		{MakeCaptureOption(), MakeOutputOption({}), MakeNameOption(TEXT("the livestream name to type"), {})},
		&ShowFilledIn});
	Views.Add({TEXT("wizard-warnings"), TEXT("the wizard after Create with no output ticked and no name: both warning lines"),
		{MakeCaptureOption()},
		[](const FEditorViewArguments& Arguments)
		{ return ShowAfterCreate(ReadCapture(Arguments), ELivestreamWizardOutcome::Refused, TEXT("the wizard refusing")); }});
	Views.Add({TEXT("wizard-created"), TEXT("the wizard's done page after it created a livestream"),
		{MakeCaptureOption(), MakeOutputOption({TEXT("Spout"), TEXT("NDI")}), MakeNameOption(TEXT("the livestream name to type"), {TEXT("Main Stage")})},
		[](const FEditorViewArguments& Arguments)
		{ return ShowAfterCreate(ReadInputs(Arguments), ELivestreamWizardOutcome::Created, TEXT("the done page after a create")); }});
	Views.Add({TEXT("wizard-failed"), TEXT("the wizard's done page after a create failed, offering to try again"),
		{MakeCaptureOption(), MakeOutputOption({TEXT("Spout")}), MakeNameOption(TEXT("the livestream name to type; one the editor cannot make an asset of, e.g. ending in \"/\""), {TEXT("Stage/")})},
		[](const FEditorViewArguments& Arguments)
		{ return ShowAfterCreate(ReadInputs(Arguments), ELivestreamWizardOutcome::Failed, TEXT("the done page after a failed create")); }});
	return Views;
}
