#include "Views/EditorViews.h"

#include <gtest/gtest.h>

namespace
{
	const FString Japanese = FString(UTF8_TO_TCHAR("\xe3\x83\xa9\xe3\x82\xa4\xe3\x83\x96\xe9\x85\x8d\xe4\xbf\xa1")); // ライブ配信

	/**
	 * What a view showed with the given option values, the others at their defaults. The view is
	 * closed at once, as only one view shows at a time.
	 */
	class FSeenView
	{
	public:
		FSeenView(const TCHAR* Name, const TArray<TPair<FString, FString>>& Given = {})
		{
			const FEditorView& View = *FEditorViews::Find(Name);
			FEditorViewArguments Arguments(View.Options);
			for (const TPair<FString, FString>& Value : Given)
			{
				Arguments.Add(Value.Key, Value.Value);
			}
			const FShownEditorView Shown = View.Show(Arguments);
			Problem = Shown.GetProblem();
			Outline = Shown.DescribeOutline();
			Height = Shown.GetSize().Y;
		}

		const FString& GetProblem() const { return Problem; }
		bool Shows(const FString& Text) const { return Outline.Contains(Text, ESearchCase::CaseSensitive); }
		int32 GetHeight() const { return Height; }
		std::string Describe() const { return TCHAR_TO_UTF8(*Outline); }

	private:
		FString Problem;
		FString Outline;
		int32 Height = 0;
	};

	FString Picker(const FString& Label)
	{
		return TEXT("SComboBox<TSharedPtr<FString>> \"") + Label + TEXT("\" at ");
	}

	const TCHAR* const ReceiverViews[] = {TEXT("spout-receiver"), TEXT("ndi-receiver")};
}

TEST(DetailsViews, AReceiverMarksItsStoredSenderLostOnlyWhileNoLiveSenderHasItsName)
{
	for (const TCHAR* Name : ReceiverViews)
	{
		SCOPED_TRACE(TCHAR_TO_UTF8(Name));
		const FSeenView Gone(Name, {{TEXT("sender"), TEXT("Cam A")}, {TEXT("sender"), TEXT("Cam B")}, {TEXT("stored"), TEXT("Cam C")}});
		EXPECT_EQ(Gone.GetProblem(), FString());
		EXPECT_TRUE(Gone.Shows(Picker(TEXT("Cam C [lost]")))) << Gone.Describe();

		const FSeenView Live(Name, {{TEXT("sender"), TEXT("Cam A")}, {TEXT("sender"), TEXT("Cam B")}, {TEXT("stored"), TEXT("Cam B")}});
		EXPECT_EQ(Live.GetProblem(), FString());
		EXPECT_TRUE(Live.Shows(Picker(TEXT("Cam B")))) << Live.Describe();
		EXPECT_FALSE(Live.Shows(TEXT("[lost]"))) << Live.Describe();

		// Names differ by their letters' case too.
		const FSeenView OtherCase(Name, {{TEXT("sender"), TEXT("Cam B")}, {TEXT("stored"), TEXT("cam b")}});
		EXPECT_EQ(OtherCase.GetProblem(), FString());
		EXPECT_TRUE(OtherCase.Shows(Picker(TEXT("cam b [lost]")))) << OtherCase.Describe();
	}
}

TEST(DetailsViews, TheReceiversShowTheirOwnKindOfPanel)
{
	const FSeenView Spout(TEXT("spout-receiver"));
	EXPECT_EQ(Spout.GetProblem(), FString());
	EXPECT_TRUE(Spout.Shows(Picker(TEXT("Backstage [lost]")))) << Spout.Describe();
	EXPECT_TRUE(Spout.Shows(TEXT("STextBlock \"Fix Gamma\" at "))) << Spout.Describe();
	EXPECT_FALSE(Spout.Shows(TEXT("NDI Sound Wave")));

	const FSeenView NDI(TEXT("ndi-receiver"));
	EXPECT_EQ(NDI.GetProblem(), FString());
	EXPECT_TRUE(NDI.Shows(Picker(TEXT("STUDIO (Backstage) [lost]")))) << NDI.Describe();
	EXPECT_TRUE(NDI.Shows(TEXT("STextBlock \"NDI Sound Wave\" at "))) << NDI.Describe();
	EXPECT_FALSE(NDI.Shows(TEXT("Fix Gamma")));
}

TEST(DetailsViews, AJapaneseSenderNameShowsInThePicker)
{
	for (const TCHAR* Name : ReceiverViews)
	{
		SCOPED_TRACE(TCHAR_TO_UTF8(Name));
		const FSeenView Live(Name, {{TEXT("sender"), Japanese}, {TEXT("stored"), Japanese}});
		EXPECT_EQ(Live.GetProblem(), FString());
		EXPECT_TRUE(Live.Shows(Picker(Japanese))) << Live.Describe();

		const FSeenView Gone(Name, {{TEXT("stored"), Japanese}});
		EXPECT_TRUE(Gone.Shows(Picker(Japanese + TEXT(" [lost]")))) << Gone.Describe();
	}
}

TEST(DetailsViews, AStoredNameThePickerCannotHoldIsAProblem)
{
	// Its own first entry picks the first available sender instead of a sender of that name.
	const FSeenView View(TEXT("spout-receiver"), {{TEXT("stored"), TEXT("Use first available sender")}});

	EXPECT_EQ(View.GetProblem(), FString(TEXT("the sender picker was to show \"Use first available sender [lost]\", but it shows \"Use first available sender\"")));
}

TEST(DetailsViews, TheScreenCaptureShowsThePickerOfItsTypeOnTheFirstSource)
{
	const FSeenView Monitor(TEXT("screen-capture"), {{TEXT("monitor"), TEXT("Left")}, {TEXT("monitor"), TEXT("Right")}, {TEXT("window"), TEXT("Overlay")}});
	EXPECT_EQ(Monitor.GetProblem(), FString());
	EXPECT_TRUE(Monitor.Shows(TEXT("SComboButton \"Monitor\" at "))) << Monitor.Describe();
	EXPECT_TRUE(Monitor.Shows(TEXT("STextBlock \"Monitor Name\" at "))) << Monitor.Describe();
	EXPECT_TRUE(Monitor.Shows(Picker(TEXT("Left")))) << Monitor.Describe();
	EXPECT_FALSE(Monitor.Shows(TEXT("Window Name")));
	EXPECT_FALSE(Monitor.Shows(TEXT("Overlay")));

	const FSeenView Window(TEXT("screen-capture"), {{TEXT("type"), TEXT("Window")}, {TEXT("monitor"), TEXT("Left")}, {TEXT("window"), TEXT("Overlay")}, {TEXT("window"), TEXT("Preview")}});
	EXPECT_EQ(Window.GetProblem(), FString());
	EXPECT_TRUE(Window.Shows(TEXT("SComboButton \"Window\" at "))) << Window.Describe();
	EXPECT_TRUE(Window.Shows(TEXT("STextBlock \"Window Name\" at "))) << Window.Describe();
	EXPECT_TRUE(Window.Shows(Picker(TEXT("Overlay")))) << Window.Describe();
	EXPECT_FALSE(Window.Shows(TEXT("Monitor Name")));
	EXPECT_FALSE(Window.Shows(TEXT("Left")));
	// One picker row in place of the other: the panel keeps its height.
	EXPECT_EQ(Window.GetHeight(), Monitor.GetHeight());
}

TEST(DetailsViews, AStartedMediaOutputShowsItsRunningTimeAndOnlyStop)
{
	const FSeenView Started(TEXT("media-output"), {{TEXT("started"), TEXT("yes")}});
	EXPECT_EQ(Started.GetProblem(), FString());
	EXPECT_TRUE(Started.Shows(TEXT("STextBlock \"+00:12:34.250\" at "))) << Started.Describe();
	EXPECT_TRUE(Started.Shows(TEXT("SButton \"Start\" (disabled) at "))) << Started.Describe();
	EXPECT_TRUE(Started.Shows(TEXT("SButton \"Stop\" at "))) << Started.Describe();

	const FSeenView Stopped(TEXT("media-output"), {{TEXT("started"), TEXT("no")}});
	EXPECT_EQ(Stopped.GetProblem(), FString());
	EXPECT_TRUE(Stopped.Shows(TEXT("STextBlock \"+00:00:00.000\" at "))) << Stopped.Describe();
	EXPECT_TRUE(Stopped.Shows(TEXT("SButton \"Start\" at "))) << Stopped.Describe();
	EXPECT_TRUE(Stopped.Shows(TEXT("SButton \"Stop\" (disabled) at "))) << Stopped.Describe();
}

TEST(DetailsViews, TheHardwareEncoderOfferShowsOnlyWhenTheRuntimeMakesIt)
{
	const FSeenView Offered(TEXT("media-output"), {{TEXT("hardware-encoder-row"), TEXT("shown")}});
	EXPECT_EQ(Offered.GetProblem(), FString());
	EXPECT_TRUE(Offered.Shows(TEXT("STextBlock \"Enable the 'HardwareEncoders' plugin for greater FPS\" at "))) << Offered.Describe();
	EXPECT_TRUE(Offered.Shows(TEXT("SButton \"Enable 'HardwareEncoders' plugin\" at "))) << Offered.Describe();

	const FSeenView Left(TEXT("media-output"), {{TEXT("hardware-encoder-row"), TEXT("hidden")}});
	EXPECT_EQ(Left.GetProblem(), FString());
	EXPECT_FALSE(Left.Shows(TEXT("HardwareEncoders"))) << Left.Describe();
	EXPECT_LT(Left.GetHeight(), Offered.GetHeight());
}

TEST(DetailsViews, TwoCaptureComponentsThatDisagreeShowAnUndeterminedBox)
{
	const FSeenView Two(TEXT("capture-component"), {{TEXT("components"), TEXT("2")}});
	EXPECT_EQ(Two.GetProblem(), FString());
	EXPECT_TRUE(Two.Shows(TEXT("STextBlock \"Fog\" at "))) << Two.Describe();
	EXPECT_TRUE(Two.Shows(TEXT("SCheckBox undetermined at "))) << Two.Describe();

	const FSeenView One(TEXT("capture-component"), {{TEXT("components"), TEXT("1")}});
	EXPECT_EQ(One.GetProblem(), FString());
	EXPECT_FALSE(One.Shows(TEXT("undetermined"))) << One.Describe();
	// Every group is open: the last one's flags show.
	EXPECT_TRUE(One.Shows(TEXT("STextBlock \"Path tracing\" at "))) << One.Describe();
	EXPECT_EQ(One.GetHeight(), Two.GetHeight());
}
