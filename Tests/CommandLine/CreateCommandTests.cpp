#include "ProgramRun.h"

#include <gtest/gtest.h>

namespace
{
	const char* const Program = "castellan-headless: ";
	const char* const NothingBuilt = "\nLevel:\nSelected:\nAssets in /Game/LivestreamWizard:\nUndo history:\n";
	// The asset's package path is the wizard's folder, the name and, when numbered, up to ten digits.
	const size_t LongestName = 1023 - 10 - std::string("/Game/LivestreamWizard/").size();

	/** Expects a create that failed: exit status 1, nothing built, the done page and Reason on standard error. */
	void ExpectFailure(const FProgramRun& Run, const std::string& DoneText, const std::string& Reason)
	{
		EXPECT_EQ(Run.ExitCode, 1);
		EXPECT_TRUE(Contains(Run.Out, "STextBlock \"" + DoneText + "\" at "));
		EXPECT_TRUE(EndsWith(Run.Out, NothingBuilt));
		EXPECT_EQ(Run.Err, Program + std::string("the wizard failed to create the livestream; it shows \"") + DoneText + "\"\n  " + Reason + "\n");
	}
}

TEST(CreateCommand, ARefusedCreateExits1WithTheWarningLines)
{
	const FProgramRun Both = RunCastellanHeadless({"create"});
	EXPECT_EQ(Both.ExitCode, 1);
	EXPECT_EQ(Both.Err, Program + std::string("the wizard refused to create the livestream; it shows:\n"
											  "  ! Select at least one output type.\n"
											  "  ! LivestreamWizard Name cannot be empty.\n"));
	// The report still shows the wizard's steps with the warnings, and an untouched level.
	EXPECT_TRUE(Contains(Both.Out, "STextBlock \"! Select at least one output type.\" at "));
	EXPECT_TRUE(EndsWith(Both.Out, NothingBuilt));

	const FProgramRun NoOutput = RunCastellanHeadless({"create", "--name", "Stage"});
	EXPECT_EQ(NoOutput.ExitCode, 1);
	EXPECT_EQ(NoOutput.Err, Program + std::string("the wizard refused to create the livestream; it shows:\n  ! Select at least one output type.\n"));

	const FProgramRun BlankName = RunCastellanHeadless({"create", "--output", "NDI", "--name", " \t"});
	EXPECT_EQ(BlankName.ExitCode, 1);
	EXPECT_EQ(BlankName.Err, Program + std::string("the wizard refused to create the livestream; it shows:\n  ! LivestreamWizard Name cannot be empty.\n"));
}

TEST(CreateCommand, ANameWithNoAssetPartFailsWithTheEnginesReason)
{
	const std::string Reason = "the editor showed a message box: Input '/Game/LivestreamWizard/' ends with a '/', which is invalid for LongPackageNames.";

	ExpectFailure(RunCastellanHeadless({"create", "--output", "Spout", "--name", "Stage/"}), "ERROR: Failed to create Livestream 'Stage/'!", Reason);
	ExpectFailure(RunCastellanHeadless({"create", "--output", "Spout", "--name", "///"}), "ERROR: Failed to create Livestream '///'!", Reason);
}

TEST(CreateCommand, TheLongestNameIsCreatedAndOneLongerFailsAsTooLongForTheEngine)
{
	const std::string Longest(LongestName, 'a');
	const FProgramRun Accepted = RunCastellanHeadless({"create", "--output", "NDI", "--name", Longest});
	EXPECT_EQ(Accepted.ExitCode, 0);
	EXPECT_EQ(Accepted.Err, "");
	EXPECT_TRUE(Contains(Accepted.Out, "  /Game/LivestreamWizard/" + Longest + "." + Longest + " (TextureRenderTarget2D)"));

	// The wizard refuses such a name before asking the engine for anything and says nothing; the program
	// names the engine's limit the name would pass.
	const std::string Reason = "the name is too long for the engine: its package name (/Game/LivestreamWizard/ and the name) is 1014 characters long, "
							   "and with the 10 digits the asset tools may append to make it unique it reaches 1024, the engine's limit for a name (NAME_SIZE)";
	const std::string TooLong = Longest + "a";
	ExpectFailure(RunCastellanHeadless({"create", "--output", "NDI", "--name", TooLong}), "ERROR: Failed to create Livestream '" + TooLong + "'!", Reason);
	// Characters the asset tools replace count as one each.
	const std::string Replaced(LongestName + 1, '?');
	ExpectFailure(RunCastellanHeadless({"create", "--output", "NDI", "--name", Replaced}), "ERROR: Failed to create Livestream '" + Replaced + "'!", Reason);
}

TEST(CreateCommand, AnOutputGivenTwiceIsTickedOnce)
{
	const FProgramRun Run = RunCastellanHeadless({"create", "--output", "Spout", "--output", "Spout", "--name", "Stage"});

	EXPECT_EQ(Run.ExitCode, 0);
	EXPECT_EQ(Run.Err, "");
	EXPECT_TRUE(Contains(Run.Out, "STextBlock \"Livestream 'Stage' created!\""));
	EXPECT_TRUE(Contains(Run.Out, "  KyroSpoutSenderManager_0 (KyroSpoutSenderManager) at (0, 0, 0)\n    sender \"Stage\" (standalone \"Stage_Standalone\"), enabled, "));
}

TEST(CreateCommand, EachCaptureTypePlacesItsActorAtTheCamera)
{
	const FProgramRun ThreeSixty = RunCastellanHeadless({"create", "--capture", "Kyro 360 Camera", "--output", "Virtual Webcam", "--name", "Dome"});
	EXPECT_EQ(ThreeSixty.ExitCode, 0);
	EXPECT_TRUE(Contains(ThreeSixty.Out, "\nLevel:\n  Kyro360CamCapture_0 (Kyro360CamCapture) at (0, 1024, 512)\n  KyroVirtualWebcamOutput_0 (KyroVirtualWebcamOutput) at (0, 0, 0)\n    render target /Game/LivestreamWizard/Dome.Dome\n"));

	const FProgramRun Viewport = RunCastellanHeadless({"create", "--capture", "Kyro Viewport Capture", "--output", "NDI", "--name", "View"});
	EXPECT_EQ(Viewport.ExitCode, 0);
	EXPECT_TRUE(Contains(Viewport.Out, "\nLevel:\n  KyroViewportCapture_0 (KyroViewportCapture) at (0, 1024, 512)\n"));
}

TEST(CreateCommand, ANonLatinNamePrintsAsUtf8)
{
	const std::string Japanese = "\xe3\x83\xa9\xe3\x82\xa4\xe3\x83\x96\xe9\x85\x8d\xe4\xbf\xa1"; // ライブ配信

	const FProgramRun Run = RunCastellanHeadless({"create", "--output", "Spout", "--name", Japanese});

	EXPECT_EQ(Run.ExitCode, 0);
	EXPECT_TRUE(Contains(Run.Out, "STextBlock \"Livestream '" + Japanese + "' created!\""));
	EXPECT_TRUE(Contains(Run.Out, "    sender \"" + Japanese + "\" (standalone \"" + Japanese + "_Standalone\"), enabled, render target /Game/LivestreamWizard/" + Japanese + "." + Japanese + "\n"));
}

TEST(CreateCommand, ControlCharactersInANamePrintEscaped)
{
	// A tab, an escape sequence, DEL, the C1 control CSI and a line feed, typed into the name box: as in the
	// engine, the box types the tab and CSI, swallows escape, DEL and the line feed.
	const FProgramRun Run = RunCastellanHeadless({"create", "--output", "Spout", "--name", "Main\tStage\x1b[31m\x7f\xc2\x9b\nEnd"});

	EXPECT_EQ(Run.ExitCode, 0);
	EXPECT_FALSE(ContainsRawControlCharacters(Run.Out));
	EXPECT_TRUE(Contains(Run.Out, "STextBlock \"Livestream 'Main\\tStage[31m\\u009BEnd' created!\""));
	// The asset tools replace the tab and the bracket; CSI stays in the sender's name.
	EXPECT_TRUE(Contains(Run.Out, "    sender \"Main_Stage_31m\\u009BEnd\" (standalone \"Main_Stage_31m\\u009BEnd_Standalone\")"));

	const FProgramRun Failed = RunCastellanHeadless({"create", "--output", "Spout", "--name", "Stage\t\xc2\x9b/"});
	EXPECT_EQ(Failed.ExitCode, 1);
	EXPECT_FALSE(ContainsRawControlCharacters(Failed.Out));
	EXPECT_FALSE(ContainsRawControlCharacters(Failed.Err));
	EXPECT_TRUE(Contains(Failed.Err, "it shows \"ERROR: Failed to create Livestream 'Stage\\t\\u009B/'!\"\n"));
}

TEST(CreateCommand, ABackslashInANamePrintsDoubled)
{
	const FProgramRun Run = RunCastellanHeadless({"create", "--output", "NDI", "--name", "A\\tB"});

	EXPECT_EQ(Run.ExitCode, 0);
	EXPECT_TRUE(Contains(Run.Out, "STextBlock \"Livestream 'A\\\\tB' created!\" at "));
}
