#include "Commands.h"

#include "Containers/StringConv.h"
#include "EditorDriver.h"
#include "HeadlessEditorSession.h"
#include "JsonReport.h"
#include "LivestreamWizardDriver.h"
#include "Report.h"
#include "WidgetDriver.h"
#include "Widgets/Docking/SDockTab.h"

#include <cstdio>

namespace
{
	using namespace CastellanCommandLine;

	const char* const CaptureOption = "--capture";
	const char* const OutputOption = "--output";
	const char* const NameOption = "--name";
	const char* const JsonOption = "--json";

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
		Print(FWidgetDriver::DescribeTree(FLivestreamWizardDriver::OpenFromToolbar()->GetContent()));
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
		{"help", "print this help", "Prints the program's usage.", {}, &RunHelp},
	};
	return Commands;
}
