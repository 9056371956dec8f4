#include "ProgramRun.h"
#include "WidgetRenderer.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <optional>
#include <regex>
#include <sstream>
#include <gtest/gtest.h>
#include <unistd.h>

namespace
{
	const char* const Program = "castellan-headless: ";
	/** The Livestream Wizard's tab, as its views draw it. */
	const int32 TabWidth = 560;
	const int32 TabHeight = 512;
	const std::string Japanese = "\xe3\x83\xa9\xe3\x82\xa4\xe3\x83\x96\xe9\x85\x8d\xe4\xbf\xa1"; // ライブ配信

	/** A line of a view's outline: the widget's type, the text it shows and where it lies, if shown. */
	struct FOutlineLine
	{
		std::string Type;
		std::optional<std::string> Text;
		std::string States;
		bool bPlaced = false;
		int32 X = 0;
		int32 Y = 0;
		int32 Width = 0;
		int32 Height = 0;
	};

	/** The widget lines of an outline printed by show, after its heading line. */
	std::vector<FOutlineLine> ParseOutline(const std::string& Outline)
	{
		static const std::regex LinePattern(R"re(^ *(\S+)(?: "(.*)")?(.*?)(?: at (\d+),(\d+) (\d+)x(\d+))?$)re");
		std::vector<FOutlineLine> Lines;
		std::istringstream Stream(Outline);
		std::string Text;
		std::getline(Stream, Text);
		while (std::getline(Stream, Text))
		{
			std::smatch Match;
			EXPECT_TRUE(std::regex_match(Text, Match, LinePattern)) << Text;
			FOutlineLine& Line = Lines.emplace_back();
			Line.Type = Match[1];
			if (Match[2].matched)
			{
				Line.Text = Match[2];
			}
			Line.States = Match[3];
			Line.bPlaced = Match[4].matched;
			if (Line.bPlaced)
			{
				Line.X = std::stoi(Match[4]);
				Line.Y = std::stoi(Match[5]);
				Line.Width = std::stoi(Match[6]);
				Line.Height = std::stoi(Match[7]);
			}
		}
		return Lines;
	}

	/** The views the list command names, in its order. */
	std::vector<std::string> GetListedViews()
	{
		std::vector<std::string> Views;
		std::istringstream Stream(RunCastellanHeadless({"list"}).Out);
		std::string Line;
		while (std::getline(Stream, Line))
		{
			Views.push_back(Line.substr(0, Line.find(' ')));
		}
		return Views;
	}

	std::string JoinViews(const std::vector<std::string>& Views)
	{
		std::string Joined;
		for (const std::string& View : Views)
		{
			Joined += (Joined.empty() ? "" : ", ") + View;
		}
		return Joined;
	}

	/** The picture size an outline printed by show states in its heading. */
	std::pair<int32, int32> ReadPictureSize(const std::string& Outline)
	{
		static const std::regex HeadingPattern(R"re(^View \S+, (\d+)x(\d+):\n)re");
		std::smatch Match;
		EXPECT_TRUE(std::regex_search(Outline, Match, HeadingPattern)) << Outline;
		return Match.empty() ? std::make_pair(0, 0) : std::make_pair(std::stoi(Match[1]), std::stoi(Match[2]));
	}

	/** A file in the temporary folder, removed when the test ends. */
	class FTemporaryFile
	{
	public:
		explicit FTemporaryFile(const std::string& Name)
			: Path("/tmp/ViewCommandsTests-" + std::to_string(getpid()) + "-" + Name)
		{
		}
		~FTemporaryFile() { std::remove(Path.c_str()); }

		const std::string Path;
	};

	std::string ReadBytes(const std::string& Path)
	{
		std::ifstream File(Path, std::ios::binary);
		return std::string(std::istreambuf_iterator<char>(File), std::istreambuf_iterator<char>());
	}

	FRenderedImage LoadPicture(const std::string& Path)
	{
		const TOptional<FRenderedImage> Image = FRenderedImage::LoadPng(FString(Path.c_str()));
		EXPECT_TRUE(Image.IsSet()) << Path << " is no PNG";
		return Image.IsSet() ? Image.GetValue() : FRenderedImage();
	}

	/** The pixels of a text line's area that stand out from its background (its most common colour). */
	struct FInk
	{
		int32 Count = 0;
		int32 Left = -1;
		int32 Right = -1;
		/** Whether every inked pixel is clearly red. */
		bool bAllRed = true;
	};

	FInk FindInk(const FRenderedImage& Image, const FOutlineLine& Line)
	{
		const int32 Right = std::min(Line.X + Line.Width, Image.Width);
		const int32 Bottom = std::min(Line.Y + Line.Height, Image.Height);
		std::map<uint32, int32> Counts;
		for (int32 Y = Line.Y; Y < Bottom; ++Y)
		{
			for (int32 X = Line.X; X < Right; ++X)
			{
				const FColor Pixel = Image.GetPixel(X, Y);
				++Counts[uint32(Pixel.R) << 16 | uint32(Pixel.G) << 8 | Pixel.B];
			}
		}
		const auto Background = std::max_element(Counts.begin(), Counts.end(), [](const auto& A, const auto& B)
			{ return A.second < B.second; });
		const FColor Paper = FColor(Background->first >> 16 & 0xFF, Background->first >> 8 & 0xFF, Background->first & 0xFF, 255);
		FInk Ink;
		for (int32 Y = Line.Y; Y < Bottom; ++Y)
		{
			for (int32 X = Line.X; X < Right; ++X)
			{
				const FColor Pixel = Image.GetPixel(X, Y);
				const int32 Difference = std::max({std::abs(Pixel.R - Paper.R), std::abs(Pixel.G - Paper.G), std::abs(Pixel.B - Paper.B)});
				if (Difference > 48)
				{
					++Ink.Count;
					Ink.Left = Ink.Left < 0 ? X : std::min(Ink.Left, X);
					Ink.Right = std::max(Ink.Right, X);
					Ink.bAllRed = Ink.bAllRed && Pixel.R > 2 * std::max(Pixel.G, Pixel.B);
				}
			}
		}
		return Ink;
	}

	bool IsWarningOrError(const std::string& Text)
	{
		return Text.rfind("! ", 0) == 0 || Text.rfind("ERROR: ", 0) == 0;
	}

	/**
	 * Expects each text line of the outline to be drawn where the outline puts it: a shown text's
	 * glyphs start at its left edge (red for warnings and errors), an empty one leaves its area blank.
	 * @return how many text lines it checked.
	 */
	int32 ExpectTextsWhereTheOutlineSays(const std::string& Outline, const FRenderedImage& Image)
	{
		int32 Checked = 0;
		for (const FOutlineLine& Line : ParseOutline(Outline))
		{
			if (Line.Type != "STextBlock" || !Line.bPlaced)
			{
				continue;
			}
			++Checked;
			const FInk Ink = FindInk(Image, Line);
			const std::string Text = Line.Text.value_or(std::string());
			if (Text.empty())
			{
				EXPECT_EQ(Ink.Count, 0) << "an empty text at " << Line.X << "," << Line.Y << " has ink";
				continue;
			}
			EXPECT_GT(Ink.Count, 10) << Text;
			EXPECT_GE(Ink.Left, Line.X) << Text;
			EXPECT_LE(Ink.Left, Line.X + 3) << Text;
			EXPECT_EQ(Ink.bAllRed, IsWarningOrError(Text)) << Text;
		}
		return Checked;
	}

	/** Expects a run refused for its command line: exit status 2, nothing on standard output, Message on standard error. */
	void ExpectBadCommandLine(const std::vector<std::string>& Arguments, const std::string& Message)
	{
		const FProgramRun Run = RunCastellanHeadless(Arguments);
		EXPECT_EQ(Run.ExitCode, 2);
		EXPECT_EQ(Run.Out, "");
		EXPECT_EQ(Run.Err, Program + Message + "\n");
	}

	std::string Heading(const std::string& View)
	{
		return "View " + View + ", " + std::to_string(TabWidth) + "x" + std::to_string(TabHeight) + ":\n";
	}
}

TEST(ViewCommands, ListNamesEveryViewWithWhatItShows)
{
	const FProgramRun Run = RunCastellanHeadless({"list"});

	EXPECT_EQ(Run.ExitCode, 0);
	EXPECT_EQ(Run.Err, "");
	EXPECT_EQ(Run.Out,
		"wizard                 the Livestream Wizard tab as it opens from the toolbar, or filled in before Create\n"
		"wizard-warnings        the wizard after Create with no output ticked and no name: both warning lines\n"
		"wizard-created         the wizard's done page after it created a livestream\n"
		"wizard-failed          the wizard's done page after a create failed, offering to try again\n"
		"toolbar-menu           the level editor's toolbar with the plugin's drop-down open, its toggles as the runtime reports them\n"
		"version-dialog         the message box the drop-down's \"Plugin Version\" entry shows\n"
		"update-notification    the notification offering a newer plugin version, with its three buttons\n"
		"placement              the Place Actors panel on the plugin's category, with its actor classes\n"
		"new-asset              the content browser's new-asset group that lists the NDI sound wave\n"
		"spout-receiver         a Spout receiver's details: the sender picker on a stored sender that is no longer live\n"
		"ndi-receiver           an NDI receiver's details: the sender picker on a stored source that is no longer live\n"
		"screen-capture         a screen capture's details: the capture type and the picker of its sources\n"
		"screen-capture-window  a screen capture's details on the window type: the picker of open windows\n"
		"media-output           a media output's details: the encoders offer, the running time and the Start and Stop buttons\n"
		"media-output-stopped   a media output's details before Start, with the hardware encoders already enabled\n"
		"capture-component      a capture component's details with its show-flag groups open\n");
}

TEST(ViewCommands, ShowPrintsWhatEachViewShows)
{
	const FProgramRun Fresh = RunCastellanHeadless({"show", "wizard"});
	EXPECT_EQ(Fresh.ExitCode, 0);
	EXPECT_EQ(Fresh.Err, "");
	EXPECT_TRUE(BeginsWith(Fresh.Out, Heading("wizard") + "SDockTab at 0,0 560x512\n  SLivestreamWizard at 0,0 560x512\n    SScrollBox at 0,0 560x512\n      SImage Wizard_128x.png at 16,16 128x128\n"));
	EXPECT_TRUE(Contains(Fresh.Out, "\n      SComboBox<TSharedPtr<FString>> \"Kyro Cinecam\" at "));
	EXPECT_TRUE(Contains(Fresh.Out, "\n      SCheckBox \"Spout\" unchecked at "));
	EXPECT_TRUE(Contains(Fresh.Out, "\n      SCheckBox \"Virtual Webcam\" unchecked at "));
	EXPECT_TRUE(Contains(Fresh.Out, "\n      SEditableTextBox \"\" at "));
	EXPECT_TRUE(EndsWith(Fresh.Out, "      SVerticalBox (collapsed)\n      SScrollBar (collapsed, disabled)\n"));

	const FProgramRun Warnings = RunCastellanHeadless({"show", "wizard-warnings"});
	EXPECT_EQ(Warnings.ExitCode, 0);
	EXPECT_EQ(Warnings.Err, "");
	EXPECT_TRUE(Contains(Warnings.Out, "\n      SCheckBox \"Virtual Webcam\" unchecked at 16,357 528x18\n      STextBlock \"! Select at least one output type.\" at 16,377 528x13\n"));
	EXPECT_TRUE(Contains(Warnings.Out, "\n      SEditableTextBox \"\" at 16,417 528x24\n      STextBlock \"! LivestreamWizard Name cannot be empty.\" at 16,443 528x13\n      SButton \"Create\" at "));

	// The done pages show instead of the steps, below the header.
	const FProgramRun Created = RunCastellanHeadless({"show", "wizard-created"});
	EXPECT_EQ(Created.ExitCode, 0);
	EXPECT_EQ(Created.Err, "");
	EXPECT_TRUE(Contains(Created.Out, "Viewport Capture\" at 16,183 528x17\n      SVerticalBox (collapsed)\n      STextBlock \"Livestream 'Main Stage' created!\" at 16,208 528x19\n      SButton \"Create Another Livestream\" at 16,235 "));
	EXPECT_FALSE(Contains(Created.Out, "SCheckBox"));

	const FProgramRun Failed = RunCastellanHeadless({"show", "wizard-failed"});
	EXPECT_EQ(Failed.ExitCode, 0);
	EXPECT_EQ(Failed.Err, "");
	EXPECT_TRUE(Contains(Failed.Out, "\n      STextBlock \"ERROR: Failed to create Livestream 'Stage/'!\" at 16,208 528x19\n      SButton \"Try Again\" at 16,235 "));
}

TEST(ViewCommands, OptionsFillTheWizardIn)
{
	const FProgramRun Run = RunCastellanHeadless({"show", "wizard", "--capture", "Kyro 360 Camera", "--output", "NDI", "--output", "Virtual Webcam", "--name", "Main Stage"});

	EXPECT_EQ(Run.ExitCode, 0);
	EXPECT_EQ(Run.Err, "");
	EXPECT_TRUE(Contains(Run.Out, "SComboBox<TSharedPtr<FString>> \"Kyro 360 Camera\" at "));
	EXPECT_TRUE(Contains(Run.Out, "SCheckBox \"Spout\" unchecked at "));
	EXPECT_TRUE(Contains(Run.Out, "SCheckBox \"NDI\" checked at "));
	EXPECT_TRUE(Contains(Run.Out, "SCheckBox \"Media Output (RTMP, SRT, MP4 etc.)\" unchecked at "));
	EXPECT_TRUE(Contains(Run.Out, "SCheckBox \"Virtual Webcam\" checked at "));
	EXPECT_TRUE(Contains(Run.Out, "SEditableTextBox \"Main Stage\" at "));
	// Nothing was pressed: the steps show and no warning.
	EXPECT_TRUE(Contains(Run.Out, "SButton \"Create\" at "));
	EXPECT_FALSE(Contains(Run.Out, "\"! "));

	const FProgramRun Created = RunCastellanHeadless({"show", "wizard-created", "--output", "Media Output (RTMP, SRT, MP4 etc.)", "--name", "Stage"});
	EXPECT_EQ(Created.ExitCode, 0);
	EXPECT_TRUE(Contains(Created.Out, "STextBlock \"Livestream 'Stage' created!\" at "));
}

TEST(ViewCommands, PicturesHaveTheViewsSizeAndTheTextsWhereTheOutlineSays)
{
	int32 TextLines = 0;
	for (const std::string& View : GetListedViews())
	{
		const FTemporaryFile Picture(View + ".png");
		const FProgramRun Run = RunCastellanHeadless({"show", View, "--png", Picture.Path});
		ASSERT_EQ(Run.ExitCode, 0) << View << Run.Err;
		const FRenderedImage Image = LoadPicture(Picture.Path);
		const std::pair<int32, int32> Size = ReadPictureSize(Run.Out);
		EXPECT_EQ(Image.Width, Size.first) << View;
		EXPECT_EQ(Image.Height, Size.second) << View;
		SCOPED_TRACE(View);
		// Some views show their texts in buttons only, as a menu's entries.
		TextLines += ExpectTextsWhereTheOutlineSays(Run.Out, Image);
	}
	EXPECT_GT(TextLines, 3 * static_cast<int32>(GetListedViews().size()));
}

TEST(ViewCommands, TheSameViewDrawsTheSameBytes)
{
	const FTemporaryFile First("first.png");
	const FTemporaryFile Second("second.png");
	ASSERT_EQ(RunCastellanHeadless({"show", "wizard-warnings", "--png", First.Path}).ExitCode, 0);
	ASSERT_EQ(RunCastellanHeadless({"show", "wizard-warnings", "--png", Second.Path}).ExitCode, 0);

	const std::string Bytes = ReadBytes(First.Path);
	EXPECT_GT(Bytes.size(), 1000u);
	EXPECT_TRUE(Bytes == ReadBytes(Second.Path));
}

TEST(ViewCommands, AJapaneseNameShowsInTheOutlineAndThePicture)
{
	const FTemporaryFile Filled("japanese-filled.png");
	const FProgramRun Run = RunCastellanHeadless({"show", "wizard", "--name", Japanese, "--png", Filled.Path});
	EXPECT_EQ(Run.ExitCode, 0);
	EXPECT_TRUE(Contains(Run.Out, "SEditableTextBox \"" + Japanese + "\" at 16,417 528x24\n"));
	// Inside the box's frame: five full-width characters of ink, where the fresh view's empty box has none.
	const std::vector<FOutlineLine> Lines = ParseOutline(Run.Out);
	const auto Found = std::find_if(Lines.begin(), Lines.end(), [](const FOutlineLine& Line)
		{ return Line.Type == "SEditableTextBox"; });
	ASSERT_NE(Found, Lines.end());
	FOutlineLine Inside = *Found;
	Inside.X += 4;
	Inside.Y += 4;
	Inside.Width -= 8;
	Inside.Height -= 8;
	const FInk Ink = FindInk(LoadPicture(Filled.Path), Inside);
	EXPECT_LE(Ink.Left, Found->X + 12);
	EXPECT_GT(Ink.Right - Ink.Left, 5 * 10);
	EXPECT_LT(Ink.Right - Ink.Left, 5 * 16);
	const FTemporaryFile Fresh("fresh.png");
	ASSERT_EQ(RunCastellanHeadless({"show", "wizard", "--png", Fresh.Path}).ExitCode, 0);
	EXPECT_EQ(FindInk(LoadPicture(Fresh.Path), Inside).Count, 0);

	const FTemporaryFile Created("japanese-created.png");
	const FProgramRun Done = RunCastellanHeadless({"show", "wizard-created", "--name", Japanese, "--png", Created.Path});
	EXPECT_EQ(Done.ExitCode, 0);
	EXPECT_TRUE(Contains(Done.Out, "STextBlock \"Livestream '" + Japanese + "' created!\" at 16,208 528x19\n"));
	EXPECT_GT(ExpectTextsWhereTheOutlineSays(Done.Out, LoadPicture(Created.Path)), 2);
}

TEST(ViewCommands, AVeryLongNameIsCutAtTheTabsEdge)
{
	const std::string Long(1200, 'b');
	const FTemporaryFile Picture("long.png");
	const FProgramRun Run = RunCastellanHeadless({"show", "wizard-failed", "--name", Long, "--png", Picture.Path});

	// Too long for the engine to number, so the create fails as the view wants.
	EXPECT_EQ(Run.ExitCode, 0);
	EXPECT_EQ(Run.Err, "");
	EXPECT_TRUE(Contains(Run.Out, "STextBlock \"ERROR: Failed to create Livestream '" + Long + "'!\" at 16,208 528x19\n"));
	const FRenderedImage Image = LoadPicture(Picture.Path);
	EXPECT_EQ(Image.Width, TabWidth);
	EXPECT_EQ(Image.Height, TabHeight);
	const std::vector<FOutlineLine> Lines = ParseOutline(Run.Out);
	const auto Error = std::find_if(Lines.begin(), Lines.end(), [](const FOutlineLine& Line)
		{ return Line.Text && Line.Text->rfind("ERROR: ", 0) == 0; });
	ASSERT_NE(Error, Lines.end());
	const FInk Ink = FindInk(Image, *Error);
	EXPECT_TRUE(Ink.bAllRed);
	// The red line runs to the tab's edge, cut by the scroll box's padding.
	EXPECT_GE(Ink.Right, TabWidth - 16 - 8);
	EXPECT_LT(Ink.Right, TabWidth - 16);
}

TEST(ViewCommands, ControlCharactersInANamePrintEscaped)
{
	const FProgramRun Run = RunCastellanHeadless({"show", "wizard-created", "--name", "Main\tStage\xc2\x9b"});

	EXPECT_EQ(Run.ExitCode, 0);
	EXPECT_FALSE(ContainsRawControlCharacters(Run.Out));
	EXPECT_TRUE(Contains(Run.Out, "STextBlock \"Livestream 'Main\\tStage\\u009B' created!\" at "));
}

TEST(ViewCommands, ControlCharactersInASenderNamePrintEscaped)
{
	// Sender names come from the machine: a live one picked as the receiver's sender, and one gone.
	const FProgramRun Live = RunCastellanHeadless({"show", "spout-receiver", "--sender", "Cam\tB", "--sender", "Cam A", "--stored", "Cam\tB"});
	EXPECT_EQ(Live.ExitCode, 0);
	EXPECT_EQ(Live.Err, "");
	EXPECT_FALSE(ContainsRawControlCharacters(Live.Out));
	EXPECT_TRUE(Contains(Live.Out, "SComboBox<TSharedPtr<FString>> \"Cam\\tB\" at ")) << Live.Out;

	const FProgramRun Gone = RunCastellanHeadless({"show", "ndi-receiver", "--stored", "\x1b[31mRed"});
	EXPECT_EQ(Gone.ExitCode, 0);
	EXPECT_FALSE(ContainsRawControlCharacters(Gone.Out));
	EXPECT_TRUE(Contains(Gone.Out, "SComboBox<TSharedPtr<FString>> \"\\x1B[31mRed [lost]\" at ")) << Gone.Out;
}

TEST(ViewCommands, AViewWhoseStateIsNotReachedSaysWhyAndExits1)
{
	const FProgramRun Failed = RunCastellanHeadless({"show", "wizard-created", "--name", "Stage/"});
	EXPECT_EQ(Failed.ExitCode, 1);
	// What the wizard shows instead is still printed.
	EXPECT_TRUE(Contains(Failed.Out, "STextBlock \"ERROR: Failed to create Livestream 'Stage/'!\" at "));
	EXPECT_EQ(Failed.Err, Program + std::string("this view shows the done page after a create, but the wizard failed to create the livestream; it shows \"ERROR: Failed to create Livestream 'Stage/'!\"\n"));

	const FProgramRun Created = RunCastellanHeadless({"show", "wizard-failed", "--name", "Stage"});
	EXPECT_EQ(Created.ExitCode, 1);
	EXPECT_EQ(Created.Err, Program + std::string("this view shows the done page after a failed create, but the wizard created the livestream; it shows \"Livestream 'Stage' created!\"\n"));

	const FProgramRun Refused = RunCastellanHeadless({"show", "wizard-created", "--name", " "});
	EXPECT_EQ(Refused.ExitCode, 1);
	EXPECT_EQ(Refused.Err, Program + std::string("this view shows the done page after a create, but the wizard refused to create the livestream; it shows \"! LivestreamWizard Name cannot be empty.\"\n"));
}

TEST(ViewCommands, APictureThatCannotBeWrittenIsNamed)
{
	const FProgramRun Run = RunCastellanHeadless({"show", "wizard", "--png", "/nonexistent-folder/wizard.png"});

	EXPECT_EQ(Run.ExitCode, 1);
	EXPECT_TRUE(BeginsWith(Run.Out, Heading("wizard")));
	EXPECT_EQ(Run.Err, Program + std::string("cannot write the picture to \"/nonexistent-folder/wizard.png\"\n"));
}

TEST(ViewCommands, ABadViewOptionOrValueIsNamedWithWhatIsAccepted)
{
	const std::string Views = "views: " + JoinViews(GetListedViews());
	EXPECT_TRUE(BeginsWith(Views, "views: wizard, wizard-warnings, "));
	ExpectBadCommandLine({"show"}, "missing VIEW for show; " + Views);
	ExpectBadCommandLine({"show", "--png", "a.png"}, "missing VIEW for show; " + Views);
	ExpectBadCommandLine({"show", "wizzard"}, "unknown view \"wizzard\" for show; " + Views);
	ExpectBadCommandLine({"show", "Wizard"}, "unknown view \"Wizard\" for show; " + Views);
	ExpectBadCommandLine({"show", "wizard", "--title", "Stage"}, "unknown option \"--title\" for show wizard; options: --capture, --output, --name, --png, --help");
	// Each view takes its own options only.
	ExpectBadCommandLine({"show", "wizard-warnings", "--name", "Stage"}, "unknown option \"--name\" for show wizard-warnings; options: --capture, --png, --help");
	ExpectBadCommandLine({"show", "wizard", "--output", "spout"}, "unknown value \"spout\" for --output; accepted values: \"Spout\", \"NDI\", \"Media Output (RTMP, SRT, MP4 etc.)\", \"Virtual Webcam\"");
	ExpectBadCommandLine({"show", "placement", "--ndi-module", "unloaded"}, "unknown value \"unloaded\" for --ndi-module; accepted values: \"loaded\", \"absent\"");
	ExpectBadCommandLine({"show", "toolbar-menu", "--editor-viewport-rendering", "On"}, "unknown value \"On\" for --editor-viewport-rendering; accepted values: \"on\", \"off\"");
	ExpectBadCommandLine({"show", "wizard-created", "--capture", "Cinecam"}, "unknown value \"Cinecam\" for --capture; accepted values: \"Kyro Cinecam\", \"Kyro 360 Camera\", \"Kyro Viewport Capture\"");
	ExpectBadCommandLine({"show", "wizard-failed", "--name"}, "missing value for --name; usage: --name NAME");
	ExpectBadCommandLine({"show", "wizard", "--png"}, "missing value for --png; usage: --png FILE");
	ExpectBadCommandLine({"show", "wizard", "--capture"}, "missing value for --capture; accepted values: \"Kyro Cinecam\", \"Kyro 360 Camera\", \"Kyro Viewport Capture\"");
	ExpectBadCommandLine({"show", "wizard", "--name", "A", "--name", "B"}, "--name given more than once");
	ExpectBadCommandLine({"show", "wizard", "wizard-created"}, "unexpected argument \"wizard-created\" for show wizard; options: --capture, --output, --name, --png, --help");
	ExpectBadCommandLine({"gallery"}, "missing DIR for gallery; usage: castellan-headless gallery DIR");
	ExpectBadCommandLine({"list", "wizard"}, "unexpected argument \"wizard\" for list; options: --help");
}

TEST(ViewCommands, HelpListsTheViewsAndEachViewsOptions)
{
	const FProgramRun Show = RunCastellanHeadless({"show", "--help"});
	EXPECT_EQ(Show.ExitCode, 0);
	EXPECT_EQ(Show.Err, "");
	EXPECT_TRUE(BeginsWith(Show.Out, "Usage: castellan-headless show VIEW [OPTIONS]\n"));
	// The views as list names them.
	std::string Listed;
	std::istringstream List(RunCastellanHeadless({"list"}).Out);
	for (std::string Line; std::getline(List, Line);)
	{
		Listed += "  " + Line + "\n";
	}
	EXPECT_TRUE(Contains(Show.Out, "\nViews:\n" + Listed + "\nOptions:\n"));
	EXPECT_TRUE(Contains(Show.Out, "\n  --png FILE  also write the view's picture to this PNG file\n"));
	EXPECT_TRUE(EndsWith(Show.Out, "Run 'castellan-headless show VIEW --help' for the options of a view.\n"));

	const FProgramRun Created = RunCastellanHeadless({"show", "wizard-created", "--help"});
	EXPECT_EQ(Created.ExitCode, 0);
	EXPECT_EQ(Created.Out,
		"Usage: castellan-headless show wizard-created [OPTIONS]\n"
		"\n"
		"the wizard's done page after it created a livestream\n"
		"\n"
		"Options:\n"
		"  --capture TYPE   the capture type to pick; the wizard's own first one when not given\n"
		"                   one of: \"Kyro Cinecam\", \"Kyro 360 Camera\", \"Kyro Viewport Capture\"\n"
		"  --output OUTPUT  an output to tick; give it again for more\n"
		"                   one of: \"Spout\", \"NDI\", \"Media Output (RTMP, SRT, MP4 etc.)\", \"Virtual Webcam\"\n"
		"                   default: \"Spout\", \"NDI\"\n"
		"  --name NAME      the livestream name to type\n"
		"                   default: \"Main Stage\"\n"
		"  --png FILE       also write the view's picture to this PNG file\n"
		"  -h, --help       print this help\n");

	// Help wins over the rest of the line: nothing is shown.
	const FProgramRun Warnings = RunCastellanHeadless({"show", "wizard-warnings", "--capture", "Kyro 360 Camera", "-h"});
	EXPECT_EQ(Warnings.ExitCode, 0);
	EXPECT_TRUE(BeginsWith(Warnings.Out, "Usage: castellan-headless show wizard-warnings [OPTIONS]\n"));
	EXPECT_TRUE(Contains(Warnings.Out, "\n  --capture TYPE  "));
	EXPECT_FALSE(Contains(Warnings.Out, "--name"));
}

TEST(ViewCommands, GalleryDrawsEveryViewAsShowDoes)
{
	const std::filesystem::path Folder = std::filesystem::temp_directory_path() / ("ViewCommandsTests-gallery-" + std::to_string(getpid()));
	std::filesystem::create_directory(Folder);
	const FProgramRun Run = RunCastellanHeadless({"gallery", Folder.string()});

	EXPECT_EQ(Run.ExitCode, 0);
	EXPECT_EQ(Run.Err, "");
	std::string Expected;
	for (const std::string& View : GetListedViews())
	{
		const FTemporaryFile Shown(View + "-shown.png");
		const FProgramRun Show = RunCastellanHeadless({"show", View, "--png", Shown.Path});
		ASSERT_EQ(Show.ExitCode, 0) << View;
		const std::pair<int32, int32> Size = ReadPictureSize(Show.Out);
		Expected += (Folder / (View + ".png")).string() + " (" + std::to_string(Size.first) + "x" + std::to_string(Size.second) + ")\n";
		EXPECT_TRUE(ReadBytes((Folder / (View + ".png")).string()) == ReadBytes(Shown.Path)) << View;
	}
	EXPECT_EQ(Run.Out, Expected);
	std::filesystem::remove_all(Folder);

	const FProgramRun Missing = RunCastellanHeadless({"gallery", "/nonexistent-folder"});
	EXPECT_EQ(Missing.ExitCode, 1);
	EXPECT_TRUE(BeginsWith(Missing.Err, Program + std::string("cannot write the picture to \"/nonexistent-folder/wizard.png\"\n")));
}
