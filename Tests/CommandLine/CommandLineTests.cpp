#include "ProgramRun.h"

#include <gtest/gtest.h>

namespace
{
	const char* const CaptureValues = "accepted values: \"Kyro Cinecam\", \"Kyro 360 Camera\", \"Kyro Viewport Capture\"";
	const char* const CreateOptions = "options: --capture, --output, --name, --json, --help";

	/** Expects a run refused for its command line: exit status 2, nothing on standard output, Message on standard error. */
	void ExpectBadCommandLine(const std::vector<std::string>& Arguments, const std::string& Message)
	{
		const FProgramRun Run = RunCastellanHeadless(Arguments);
		EXPECT_EQ(Run.ExitCode, 2);
		EXPECT_EQ(Run.Out, "");
		EXPECT_EQ(Run.Err, "castellan-headless: " + Message + "\n");
	}
}

TEST(CommandLine, WizardPrintsRegistrationsAndTheWizardTree)
{
	const FProgramRun Run = RunCastellanHeadless({"wizard"});

	EXPECT_EQ(Run.ExitCode, 0);
	EXPECT_EQ(Run.Err, "");
	EXPECT_TRUE(BeginsWith(Run.Out, "Registered by CastellanEditor:\n"));
	EXPECT_TRUE(Contains(Run.Out, "  Nomad tab \"LivestreamWizard\": \"Livestream Wizard\""));
	// The tab's outline as the wizard view gives it: docked at its size, the done page collapsed below Create.
	EXPECT_TRUE(Contains(Run.Out, "\nLivestreamWizard tab:\nSDockTab at 0,0 560x512\n  SLivestreamWizard at 0,0 560x512\n"));
	EXPECT_TRUE(Contains(Run.Out, "      SCheckBox \"Spout\" unchecked at "));
	EXPECT_TRUE(Contains(Run.Out, "      SButton \"Create\" at 16,464 70x24\n      SVerticalBox (collapsed)\n"));
}

TEST(CommandLine, MenuPrintsTheToolbarDropDown)
{
	const FProgramRun Run = RunCastellanHeadless({"menu"});

	EXPECT_EQ(Run.ExitCode, 0);
	EXPECT_EQ(Run.Err, "");
	EXPECT_TRUE(BeginsWith(Run.Out, "Toolbar \"LevelEditor.LevelEditorToolBar.AssetsToolBar\", section \"Content\": combo button \"Nimbrel\" (style CalloutToolbar)\n[Tools]\n  Livestream Wizard - "));
	EXPECT_TRUE(Contains(Run.Out, "[Settings]\n  [x] Editor Viewport Rendering - "));
}

TEST(CommandLine, CreateBuildsTheSetupAndPrintsTheLevel)
{
	const FProgramRun Run = RunCastellanHeadless({"create", "--capture", "Kyro Cinecam", "--output", "Spout", "--output", "Media Output (RTMP, SRT, MP4 etc.)", "--name", "Stage"});

	EXPECT_EQ(Run.ExitCode, 0);
	EXPECT_EQ(Run.Err, "");
	EXPECT_TRUE(BeginsWith(Run.Out, "After pressing Create, the wizard shows:\nSDockTab at 0,0 560x512\n"));
	EXPECT_TRUE(Contains(Run.Out, "      SVerticalBox (collapsed)\n      STextBlock \"Livestream 'Stage' created!\" at "));
	EXPECT_TRUE(Contains(Run.Out, "\n\nLevel:\n"
								  "  KyroCineCamCapture_0 (KyroCineCamCapture) at (0, 1024, 512)\n"
								  "  KyroSpoutSenderManager_0 (KyroSpoutSenderManager) at (0, 0, 0)\n"
								  "    sender \"Stage\" (standalone \"Stage_Standalone\"), enabled, render target /Game/LivestreamWizard/Stage.Stage\n"
								  "  KyroMediaOutput_0 (KyroMediaOutput) at (0, 0, 0)\n"
								  "    render target /Game/LivestreamWizard/Stage.Stage\n"
								  "Selected:\n"
								  "  KyroCineCamCapture_0\n"
								  "Assets in /Game/LivestreamWizard:\n"
								  "  /Game/LivestreamWizard/Stage.Stage (TextureRenderTarget2D), package modified, unsaved\n"
								  "Undo history:\n"
								  "  \"Create Setup\"\n"));
}

TEST(CommandLine, HelpPrintsTheUsageOnStandardOutput)
{
	const FProgramRun Help = RunCastellanHeadless({"--help"});

	EXPECT_EQ(Help.ExitCode, 0);
	EXPECT_EQ(Help.Err, "");
	EXPECT_TRUE(BeginsWith(Help.Out, "Usage: castellan-headless COMMAND [OPTIONS]\n"));
	EXPECT_TRUE(Contains(Help.Out, "\nCommands:\n  wizard   open the Livestream Wizard"));
	EXPECT_TRUE(Contains(Help.Out, "\n  menu     print the toolbar button"));
	EXPECT_TRUE(Contains(Help.Out, "\n  create   fill in the wizard"));
	EXPECT_TRUE(Contains(Help.Out, "\n  list     list the views"));
	EXPECT_TRUE(Contains(Help.Out, "\n  show     print a view's outline"));
	EXPECT_TRUE(Contains(Help.Out, "\n  gallery  draw every view"));
	EXPECT_TRUE(Contains(Help.Out, "\n  help     print this help\n"));
	EXPECT_TRUE(Contains(Help.Out, "castellan-headless COMMAND --help"));
	for (const char* Same : {"-h", "help"})
	{
		const FProgramRun Run = RunCastellanHeadless({Same});
		EXPECT_EQ(Run.ExitCode, 0) << Same;
		EXPECT_EQ(Run.Out, Help.Out) << Same;
		EXPECT_EQ(Run.Err, "") << Same;
	}
}

TEST(CommandLine, EachCommandPrintsItsOwnHelp)
{
	const FProgramRun Create = RunCastellanHeadless({"create", "--help"});
	EXPECT_EQ(Create.ExitCode, 0);
	EXPECT_EQ(Create.Err, "");
	EXPECT_TRUE(BeginsWith(Create.Out, "Usage: castellan-headless create [OPTIONS]\n"));
	EXPECT_TRUE(Contains(Create.Out, "  --capture TYPE "));
	EXPECT_TRUE(Contains(Create.Out, "one of: \"Kyro Cinecam\", \"Kyro 360 Camera\", \"Kyro Viewport Capture\"\n"));
	EXPECT_TRUE(Contains(Create.Out, "one of: \"Spout\", \"NDI\", \"Media Output (RTMP, SRT, MP4 etc.)\", \"Virtual Webcam\"\n"));
	EXPECT_TRUE(Contains(Create.Out, "  --name NAME "));
	EXPECT_TRUE(Contains(Create.Out, "  --json "));
	EXPECT_TRUE(Contains(Create.Out, "  -h, --help "));

	// Help wins over the rest of the line: nothing is created.
	const FProgramRun Short = RunCastellanHeadless({"create", "--name", "Stage", "-h"});
	EXPECT_EQ(Short.ExitCode, 0);
	EXPECT_EQ(Short.Out, Create.Out);

	for (const char* Command : {"wizard", "menu"})
	{
		const FProgramRun Run = RunCastellanHeadless({Command, "--help"});
		EXPECT_EQ(Run.ExitCode, 0) << Command;
		EXPECT_TRUE(BeginsWith(Run.Out, std::string("Usage: castellan-headless ") + Command + "\n")) << Command;
		EXPECT_TRUE(Contains(Run.Out, "  -h, --help ")) << Command;
		EXPECT_EQ(Run.Err, "") << Command;
	}
}

TEST(CommandLine, NoCommandPrintsTheUsageOnStandardErrorAndExits2)
{
	const FProgramRun Run = RunCastellanHeadless({});

	EXPECT_EQ(Run.ExitCode, 2);
	EXPECT_EQ(Run.Out, "");
	EXPECT_EQ(Run.Err, RunCastellanHeadless({"--help"}).Out);
}

TEST(CommandLine, AnUnknownCommandIsNamedWithTheCommands)
{
	ExpectBadCommandLine({"crate"}, "unknown command \"crate\"; commands: wizard, menu, create, list, show, gallery, help");
	ExpectBadCommandLine({"--verbose"}, "unknown option \"--verbose\"; give a command (wizard, menu, create, list, show, gallery, help) or --help");
}

TEST(CommandLine, AnUnknownOptionIsNamedWithTheCommandsOptions)
{
	ExpectBadCommandLine({"create", "--title", "Stage"}, std::string("unknown option \"--title\" for create; ") + CreateOptions);
	ExpectBadCommandLine({"wizard", "--json"}, "unknown option \"--json\" for wizard; options: --help");
	// Options are spelt exactly.
	ExpectBadCommandLine({"create", "--Name", "Stage"}, std::string("unknown option \"--Name\" for create; ") + CreateOptions);
}

TEST(CommandLine, AnUnknownValueIsNamedWithTheAcceptedValues)
{
	ExpectBadCommandLine({"create", "--capture", "Foo"}, std::string("unknown value \"Foo\" for --capture; ") + CaptureValues);
	ExpectBadCommandLine({"create", "--output", "Bar"}, "unknown value \"Bar\" for --output; accepted values: \"Spout\", \"NDI\", \"Media Output (RTMP, SRT, MP4 etc.)\", \"Virtual Webcam\"");
	// Values are spelt exactly, also after a good one.
	ExpectBadCommandLine({"create", "--output", "Spout", "--output", "ndi"}, "unknown value \"ndi\" for --output; accepted values: \"Spout\", \"NDI\", \"Media Output (RTMP, SRT, MP4 etc.)\", \"Virtual Webcam\"");
}

TEST(CommandLine, AMissingValueIsNamed)
{
	ExpectBadCommandLine({"create", "--output", "Spout", "--name"}, "missing value for --name; usage: --name NAME");
	ExpectBadCommandLine({"create", "--capture"}, std::string("missing value for --capture; ") + CaptureValues);
}

TEST(CommandLine, AFlagTakesNoValueAndASingleOptionIsGivenOnce)
{
	ExpectBadCommandLine({"create", "--json=yes"}, "--json takes no value");
	ExpectBadCommandLine({"create", "--capture", "Kyro Cinecam", "--capture", "Kyro 360 Camera"}, "--capture given more than once");
	ExpectBadCommandLine({"create", "--name", "A", "--name=B"}, "--name given more than once");
}

TEST(CommandLine, AnArgumentThatIsNoOptionIsRefused)
{
	ExpectBadCommandLine({"create", "--output", "Spout", "Stage"}, std::string("unexpected argument \"Stage\" for create; ") + CreateOptions);
}

TEST(CommandLine, ValuesInMessagesAreEscaped)
{
	const FProgramRun Run = RunCastellanHeadless({"create", "--capture", "Foo\x1b[2J\tBar"});

	EXPECT_EQ(Run.ExitCode, 2);
	EXPECT_TRUE(BeginsWith(Run.Err, "castellan-headless: unknown value \"Foo\\x1B[2J\\tBar\" for --capture"));
	EXPECT_FALSE(ContainsRawControlCharacters(Run.Err));
}

TEST(CommandLine, AValueMayFollowItsOptionAfterAnEqualsSign)
{
	const FProgramRun Run = RunCastellanHeadless({"create", "--output=NDI", "--name=Stage=Main"});

	EXPECT_EQ(Run.ExitCode, 0);
	EXPECT_TRUE(Contains(Run.Out, "STextBlock \"Livestream 'Stage=Main' created!\""));
	EXPECT_TRUE(Contains(Run.Out, "  KyroNDISenderManager_0 (KyroNDISenderManager) at (0, 0, 0)\n"));
}
