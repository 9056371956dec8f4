#include "Commands.h"

#include "Containers/StringConv.h"
#include "EditorDriver.h"
#include "HeadlessEditorSession.h"
#include "JsonReport.h"
#include "LivestreamWizardDriver.h"
#include "PrintableText.h"
#include "Report.h"
#include "Views/EditorViews.h"
#include "Views/ViewOutline.h"
#include "Widgets/Docking/SDockTab.h"

#include <algorithm>
#include <cstdio>

namespace
{
	using namespace CastellanCommandLine;

	const char* const CaptureOption = "--capture";
	const char* const OutputOption = "--output";
	const char* const NameOption = "--name";
	const char* const JsonOption = "--json";
	const char* const PngOption = "--png";

	void Print(const FString& Text)
	{
		std::fputs(TCHAR_TO_UTF8(*Text), stdout);
	}

	void PrintError(const FString& Text)
	{
		std::fprintf(stderr, "%s: %s", ProgramName, TCHAR_TO_UTF8(*Text));
	}

	int RunWizard(const FParsedCommand&)
	{
		FHeadlessEditorSession Session;
		Print(CastellanReport::DescribeRegistrations());
		Print(TEXT("\nLivestreamWizard tab:\n"));
		Print(FViewOutline::Describe(FLivestreamWizardDriver::OpenFromToolbar(), FLivestreamWizardDriver::GetDockedTabSize()));
		return ExitDone;
	}

	int RunMenu(const FParsedCommand&)
	{
		FHeadlessEditorSession Session;
		Print(CastellanReport::DescribeToolbarMenu());
		return ExitDone;
	}

	FString FromUtf8(const std::string& Text)
	{
		return FString(UTF8_TO_TCHAR(Text.c_str()));
	}

	std::string ToUtf8(const FString& Text)
	{
		return std::string(TCHAR_TO_UTF8(*Text));
	}

	FLivestreamWizardInputs MakeWizardInputs(const FParsedCommand& Parsed)
	{
		FLivestreamWizardInputs Inputs;
		if (const std::optional<std::string> Capture = Parsed.GetValue(CaptureOption))
		{
			Inputs.Capture = FromUtf8(*Capture);
		}
		for (const std::string& Output : Parsed.GetValues(OutputOption))
		{
			Inputs.Outputs.Add(FromUtf8(Output));
		}
		Inputs.Name = FromUtf8(Parsed.GetValue(NameOption).value_or(std::string()));
		return Inputs;
	}

	int RunCreate(const FParsedCommand& Parsed)
	{
		const FLivestreamWizardInputs Inputs = MakeWizardInputs(Parsed);
		FHeadlessEditorSession Session;
		const FCreateResult Result = CastellanEditorDriver::CreateLivestream(Inputs);
		if (Parsed.Has(JsonOption))
		{
			std::fputs(CastellanJsonReport::FormatCreateResult(Result).c_str(), stdout);
		}
		else
		{
			Print(CastellanReport::DescribeCreateResult(Result));
		}
		if (Result.Wizard.Outcome != ELivestreamWizardOutcome::Created)
		{
			PrintError(CastellanReport::DescribeFailure(Result));
			return ExitNotDone;
		}
		return ExitDone;
	}

	/** A view's option as the command line spells it. */
	std::string GetOptionName(const FEditorViewOption& Option)
	{
		return "--" + ToUtf8(Option.Name);
	}

	std::vector<std::string> ToUtf8(const TArray<FString>& Texts)
	{
		std::vector<std::string> Converted;
		for (const FString& Text : Texts)
		{
			Converted.push_back(ToUtf8(Text));
		}
		return Converted;
	}

	FEditorViewArguments MakeViewArguments(const FEditorView& View, const FParsedCommand& Parsed)
	{
		FEditorViewArguments Arguments(View.Options);
		for (const FEditorViewOption& Option : View.Options)
		{
			for (const std::string& Value : Parsed.GetValues(GetOptionName(Option)))
			{
				Arguments.Add(Option.Name, FromUtf8(Value));
			}
		}
		return Arguments;
	}

	/** Says on standard error why the view is not what it is meant to show, if it is not. @return whether it is */
	bool CheckReached(const FShownEditorView& Shown)
	{
		if (Shown.GetProblem().IsEmpty())
		{
			return true;
		}
		PrintError(FPrintableText::Escape(Shown.GetProblem()) + TEXT("\n"));
		return false;
	}

	/** Writes the view's picture; says on standard error when it cannot. @return whether it was written */
	bool WritePicture(const FShownEditorView& Shown, const FString& Path)
	{
		if (Shown.Render().SavePng(Path))
		{
			return true;
		}
		PrintError(FString::Printf(TEXT("cannot write the picture to \"%s\"\n"), *FPrintableText::Escape(Path)));
		return false;
	}

	int RunList(const FParsedCommand&)
	{
		int32 Width = 0;
		for (const FEditorView& View : FEditorViews::GetAll())
		{
			Width = std::max(Width, View.Name.Len());
		}
		for (const FEditorView& View : FEditorViews::GetAll())
		{
			Print(View.Name + FString::ChrN(Width - View.Name.Len() + 2, u' ') + View.Description + TEXT("\n"));
		}
		return ExitDone;
	}

	int RunShow(const FParsedCommand& Parsed)
	{
		const FEditorView& View = *FEditorViews::Find(FromUtf8(Parsed.Operand));
		const FShownEditorView Shown = View.Show(MakeViewArguments(View, Parsed));
		Print(FString::Printf(TEXT("View %s, %dx%d:\n"), *View.Name, Shown.GetSize().X, Shown.GetSize().Y) + Shown.DescribeOutline());
		const std::optional<std::string> Png = Parsed.GetValue(PngOption);
		const bool bWritten = !Png || WritePicture(Shown, FromUtf8(*Png));
		const bool bReached = CheckReached(Shown);
		return bWritten && bReached ? ExitDone : ExitNotDone;
	}

	int RunGallery(const FParsedCommand& Parsed)
	{
		const FString Folder = FromUtf8(Parsed.Operand);
		bool bAllWritten = true;
		for (const FEditorView& View : FEditorViews::GetAll())
		{
			const FShownEditorView Shown = View.Show(FEditorViewArguments(View.Options));
			const FString Path = Folder / (View.Name + TEXT(".png"));
			const bool bWritten = CheckReached(Shown) && WritePicture(Shown, Path);
			if (bWritten)
			{
				Print(FString::Printf(TEXT("%s (%dx%d)\n"), *FPrintableText::Escape(Path), Shown.GetSize().X, Shown.GetSize().Y));
			}
			bAllWritten = bAllWritten && bWritten;
		}
		return bAllWritten ? ExitDone : ExitNotDone;
	}

	/** The views as choices of the show command, their options spelt as command-line options. */
	std::vector<FChoiceSpec> MakeViewChoices()
	{
		std::vector<FChoiceSpec> Choices;
		for (const FEditorView& View : FEditorViews::GetAll())
		{
			FChoiceSpec& Choice = Choices.emplace_back();
			Choice.Name = ToUtf8(View.Name);
			Choice.Summary = ToUtf8(View.Description);
			for (const FEditorViewOption& Option : View.Options)
			{
				checkf(GetOptionName(Option) != PngOption, TEXT("The view %s has an option the show command has"), *View.Name);
				Choice.Options.push_back({GetOptionName(Option), ToUtf8(Option.ValueName), ToUtf8(Option.Help), ToUtf8(Option.AcceptedValues), Option.bRepeatable, ToUtf8(Option.Defaults)});
			}
		}
		return Choices;
	}

	int RunHelp(const FParsedCommand&)
	{
		std::fputs(FormatUsage(CastellanCommands::GetCommands()).c_str(), stdout);
		return ExitDone;
	}
}

const std::vector<FCommandSpec>& CastellanCommands::GetCommands()
{
	static const std::vector<FCommandSpec> Commands{
		{"wizard", "open the Livestream Wizard; print what the module registered and the wizard",
			"Starts the editor with the plugin, opens the \"LivestreamWizard\" tab and prints what the\n"
			"CastellanEditor module registered and the wizard as a user sees it.",
			{}, &RunWizard},
		{"menu", "print the toolbar button and its drop-down menu",
			"Opens the plugin's toolbar button's drop-down menu as a user would and prints it.",
			{}, &RunMenu},
		{"create", "fill in the wizard, press Create; print the done page, the level and the assets",
			"Fills in the Livestream Wizard as a user does (picks the capture type, ticks the outputs,\n"
			"types the name), presses Create and prints the wizard, the level, the wizard's assets and the\n"
			"undo history. When the wizard refuses or fails, says why on standard error and exits 1.",
			{
				{CaptureOption, "TYPE", "the capture type to pick; by default the wizard's first", {"Kyro Cinecam", "Kyro 360 Camera", "Kyro Viewport Capture"}},
				{OutputOption, "OUTPUT", "an output to tick; give it again for more", {"Spout", "NDI", "Media Output (RTMP, SRT, MP4 etc.)", "Virtual Webcam"}, true},
				{NameOption, "NAME", "the livestream name to type; empty by default"},
				{JsonOption, "", "print the result as JSON instead of the report"},
			},
			&RunCreate},
		{"list", "list the views the show command prints and draws",
			"Prints the name of each view of the editor module that the show command prints and draws, and\n"
			"what it shows.",
			{}, &RunList},
		{"show", "print a view's outline; with --png, draw its picture",
			"Starts the editor, brings it to the view's state as a user would, and prints the outline of\n"
			"what the view shows: each text, control and image with its state and where it lies. With --png\n"
			"it also draws the view into a PNG file. When the editor does not reach the view's state, says\n"
			"why on standard error and exits 1.",
			{{PngOption, "FILE", "also write the view's picture to this PNG file"}},
			&RunShow, FOperandSpec{"VIEW", MakeViewChoices()}},
		{"gallery", "draw every view with its defaults into DIR/<view>.png",
			"Draws the picture of every view, with its options' defaults, into the folder DIR as\n"
			"<view>.png, and prints the files written.",
			{}, &RunGallery, FOperandSpec{"DIR", {}}},
		{"help", "print this help", "Prints the program's usage.", {}, &RunHelp},
	};
	return Commands;
}
