#include "ProgramRun.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

using FJson = nlohmann::json;

namespace
{
	/** Runs create with --json and parses its standard output (a parse error fails the test). */
	FJson RunCreateJson(std::vector<std::string> Arguments, FProgramRun& OutRun)
	{
		Arguments.insert(Arguments.begin(), {"create", "--json"});
		OutRun = RunCastellanHeadless(Arguments);
		EXPECT_TRUE(FJson::accept(OutRun.Out)) << OutRun.Out;
		return FJson::parse(OutRun.Out);
	}

	FJson MakeLocation(double X, double Y, double Z)
	{
		return FJson::array({X, Y, Z});
	}
}

TEST(CreateJson, ACreatedSetupListsItsActorsAssetsAndUndoStep)
{
	FProgramRun Run;
	FJson Result = RunCreateJson({"--capture", "Kyro Cinecam", "--output", "Spout", "--output", "NDI", "--output", "Media Output (RTMP, SRT, MP4 etc.)", "--name", "Main Stage"}, Run);

	EXPECT_EQ(Run.ExitCode, 0);
	EXPECT_EQ(Run.Err, "");
	EXPECT_EQ(Result["outcome"], "created");
	EXPECT_EQ(Result["done_text"], "Livestream 'Main Stage' created!");
	EXPECT_EQ(Result["warnings"], FJson::array());
	EXPECT_EQ(Result["editor_messages"], FJson::array());

	const std::string Target = "/Game/LivestreamWizard/Main_Stage.Main_Stage";
	const FJson Sender = {{"name", "Main_Stage"}, {"standalone_name", "Main_Stage_Standalone"}, {"enabled", true}, {"render_target", Target}};
	FJson Actors = Result["level"]["actors"];
	ASSERT_EQ(Actors.size(), 4u);
	EXPECT_EQ(Actors[0], FJson({{"name", "KyroCineCamCapture_0"}, {"class", "KyroCineCamCapture"}, {"location", MakeLocation(0, 1024, 512)}}));
	EXPECT_EQ(Actors[1], FJson({{"name", "KyroSpoutSenderManager_0"}, {"class", "KyroSpoutSenderManager"}, {"location", MakeLocation(0, 0, 0)}, {"senders", FJson::array({Sender})}}));
	EXPECT_EQ(Actors[2], FJson({{"name", "KyroNDISenderManager_0"}, {"class", "KyroNDISenderManager"}, {"location", MakeLocation(0, 0, 0)}, {"senders", FJson::array({Sender})}}));
	EXPECT_EQ(Actors[3], FJson({{"name", "KyroMediaOutput_0"}, {"class", "KyroMediaOutput"}, {"location", MakeLocation(0, 0, 0)}, {"render_target", Target}}));
	EXPECT_EQ(Result["level"]["selected"], FJson::array({"KyroCineCamCapture_0"}));
	EXPECT_EQ(Result["assets"], FJson::array({{{"path", Target}, {"class", "TextureRenderTarget2D"}, {"dirty", true}}}));
	EXPECT_EQ(Result["undo_history"], FJson::array({"Create Setup"}));
}

TEST(CreateJson, ARefusalHoldsTheWarningLinesAndAnEmptyLevel)
{
	FProgramRun Run;
	FJson Result = RunCreateJson({}, Run);

	EXPECT_EQ(Run.ExitCode, 1);
	EXPECT_TRUE(BeginsWith(Run.Err, "castellan-headless: the wizard refused to create the livestream"));
	EXPECT_EQ(Result["outcome"], "refused");
	EXPECT_TRUE(Result["done_text"].is_null());
	EXPECT_EQ(Result["warnings"], FJson::array({"! Select at least one output type.", "! LivestreamWizard Name cannot be empty."}));
	EXPECT_EQ(Result["level"]["actors"], FJson::array());
	EXPECT_EQ(Result["assets"], FJson::array());
	EXPECT_EQ(Result["undo_history"], FJson::array());
}

TEST(CreateJson, AFailureHoldsTheDoneTextAndTheEditorsMessage)
{
	FProgramRun Run;
	FJson Result = RunCreateJson({"--output", "Virtual Webcam", "--name", "Stage/"}, Run);

	EXPECT_EQ(Run.ExitCode, 1);
	EXPECT_TRUE(Contains(Run.Err, "the editor showed a message box: "));
	EXPECT_EQ(Result["outcome"], "failed");
	EXPECT_EQ(Result["done_text"], "ERROR: Failed to create Livestream 'Stage/'!");
	EXPECT_EQ(Result["warnings"], FJson::array());
	EXPECT_EQ(Result["editor_messages"], FJson::array({{{"kind", "message box"}, {"text", "Input '/Game/LivestreamWizard/' ends with a '/', which is invalid for LongPackageNames."}}}));
	EXPECT_EQ(Result["level"]["actors"], FJson::array());
	EXPECT_EQ(Result["assets"], FJson::array());
}

TEST(CreateJson, NamesKeepEveryCharacterWhileTheTextStaysPrintable)
{
	const std::string Japanese = "\xe3\x83\xa9\xe3\x82\xa4\xe3\x83\x96"; // ライブ
	const std::string Name = Japanese + "\t\x1b[1m\x7f\xc2\x9b\xe2\x80\xae";

	FProgramRun Run;
	FJson Result = RunCreateJson({"--output", "Spout", "--name", Name}, Run);

	EXPECT_EQ(Run.ExitCode, 0);
	EXPECT_FALSE(ContainsRawControlCharacters(Run.Out));
	// Text outside the controls is written as it is.
	EXPECT_TRUE(Contains(Run.Out, Japanese));
	// The right-to-left override is no control of the terminal's, but would reorder what follows it.
	EXPECT_FALSE(Contains(Run.Out, "\xe2\x80\xae"));
	// The name box types the tab, CSI and the override, and swallows escape and DEL, as the engine's does.
	const std::string Typed = Japanese + "\t[1m\xc2\x9b\xe2\x80\xae";
	EXPECT_EQ(Result["done_text"], "Livestream '" + Typed + "' created!");
	EXPECT_EQ(Result["level"]["actors"][1]["senders"][0]["name"], Japanese + "__1m\xc2\x9b\xe2\x80\xae");
}
