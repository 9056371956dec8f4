#include "Views/EditorViews.h"
#include "Widgets/SWidget.h"

#include <gtest/gtest.h>

namespace
{
	TArray<FEditorViewOption> MakeOptions()
	{
		return {
			{TEXT("colour"), TEXT("COLOUR"), TEXT("a colour"), {TEXT("Red"), TEXT("Blue")}, {TEXT("Red")}, false},
			{TEXT("tag"), TEXT("TAG"), TEXT("a tag; give it again for more"), {}, {TEXT("a"), TEXT("b")}, true},
			{TEXT("title"), TEXT("TITLE"), TEXT("a title"), {}, {}, false},
		};
	}
}

TEST(EditorViews, TheViewsAreListedInAStableOrder)
{
	TArray<FString> Names;
	for (const FEditorView& View : FEditorViews::GetAll())
	{
		Names.Add(View.Name);
	}
	EXPECT_EQ(Names, TArray<FString>({TEXT("wizard"), TEXT("wizard-warnings"), TEXT("wizard-created"), TEXT("wizard-failed"), TEXT("toolbar-menu"), TEXT("version-dialog"), TEXT("update-notification"), TEXT("placement"), TEXT("new-asset"), TEXT("spout-receiver"), TEXT("ndi-receiver"), TEXT("screen-capture"), TEXT("screen-capture-window"), TEXT("media-output"), TEXT("media-output-stopped"), TEXT("capture-component")}));

	ASSERT_NE(FEditorViews::Find(TEXT("wizard-created")), nullptr);
	EXPECT_EQ(FEditorViews::Find(TEXT("wizard-created"))->Name, TEXT("wizard-created"));
	// Names are spelt exactly, as the command line takes them.
	EXPECT_EQ(FEditorViews::Find(TEXT("Wizard")), nullptr);
	EXPECT_EQ(FEditorViews::Find(TEXT("wizard-")), nullptr);
}

TEST(EditorViews, EachViewsOptionsTakeTheirOwnDefaults)
{
	for (const FEditorView& View : FEditorViews::GetAll())
	{
		SCOPED_TRACE(TCHAR_TO_UTF8(*View.Name));
		EXPECT_FALSE(View.Description.IsEmpty());
		EXPECT_FALSE(View.Description.Contains(TEXT("\n")));
		EXPECT_TRUE(View.Show);
		TArray<FString> OptionNames;
		for (const FEditorViewOption& Option : View.Options)
		{
			EXPECT_FALSE(OptionNames.Contains(Option.Name)) << TCHAR_TO_UTF8(*Option.Name);
			OptionNames.Add(Option.Name);
			EXPECT_TRUE(Option.bRepeatable || Option.Defaults.Num() <= 1) << TCHAR_TO_UTF8(*Option.Name);
			for (const FString& Default : Option.Defaults)
			{
				EXPECT_TRUE(Option.AcceptedValues.IsEmpty() || Option.AcceptedValues.ContainsByPredicate([&Default](const FString& Accepted)
																   { return Accepted.Equals(Default, ESearchCase::CaseSensitive); }))
					<< TCHAR_TO_UTF8(*Default);
			}
		}
	}
}

TEST(EditorViews, EachViewReachesItsStateWithItsDefaults)
{
	for (const FEditorView& View : FEditorViews::GetAll())
	{
		SCOPED_TRACE(TCHAR_TO_UTF8(*View.Name));
		const FShownEditorView Shown = View.Show(FEditorViewArguments(View.Options));
		EXPECT_EQ(Shown.GetProblem(), FString());
		// What heads the outline fills the picture: the root, or the first thing a panel at the root holds.
		const FString Place = FString::Printf(TEXT(" at 0,0 %dx%d"), Shown.GetSize().X, Shown.GetSize().Y);
		const FString Outline = Shown.DescribeOutline();
		FString Heading;
		Outline.Split(TEXT("\n"), &Heading, nullptr);
		EXPECT_TRUE(Heading.EndsWith(Place)) << TCHAR_TO_UTF8(*Outline);
	}

	// The wizard's views show its tab, wide and tall enough for every step with its warnings.
	const FEditorView& WizardView = *FEditorViews::Find(TEXT("wizard"));
	const FShownEditorView Wizard = WizardView.Show(FEditorViewArguments(WizardView.Options));
	EXPECT_TRUE(Wizard.DescribeOutline().StartsWith(TEXT("SDockTab at 0,0 560x512\n  SLivestreamWizard at 0,0 560x512\n"))) << TCHAR_TO_UTF8(*Wizard.DescribeOutline());
}

TEST(EditorViews, AViewShowsInASessionThatEndsWithIt)
{
	const FEditorView& View = *FEditorViews::Find(TEXT("wizard-created"));
	FEditorViewArguments Arguments(View.Options);
	Arguments.Add(TEXT("name"), TEXT("First"));
	EXPECT_TRUE(View.Show(Arguments).DescribeOutline().Contains(TEXT("STextBlock \"Livestream 'First' created!\"")));

	// A new session knows nothing of the last one: the same name is not taken.
	const FShownEditorView Again = View.Show(Arguments);
	EXPECT_EQ(Again.GetProblem(), FString());
	EXPECT_TRUE(Again.DescribeOutline().Contains(TEXT("STextBlock \"Livestream 'First' created!\"")));
}

TEST(EditorViews, ArgumentsAreTheValuesGivenOrElseTheDefaults)
{
	FEditorViewArguments Arguments(MakeOptions());
	EXPECT_EQ(Arguments.GetValue(TEXT("colour")), TOptional<FString>(FString(TEXT("Red"))));
	EXPECT_EQ(Arguments.GetValues(TEXT("tag")), TArray<FString>({TEXT("a"), TEXT("b")}));
	EXPECT_FALSE(Arguments.GetValue(TEXT("title")).IsSet());

	Arguments.Add(TEXT("colour"), TEXT("Blue"));
	Arguments.Add(TEXT("tag"), TEXT("c"));
	Arguments.Add(TEXT("tag"), TEXT("c"));
	Arguments.Add(TEXT("title"), FString());
	EXPECT_EQ(Arguments.GetValue(TEXT("colour")), TOptional<FString>(FString(TEXT("Blue"))));
	// Given values replace the defaults, in the order given.
	EXPECT_EQ(Arguments.GetValues(TEXT("tag")), TArray<FString>({TEXT("c"), TEXT("c")}));
	// An empty text is a value.
	EXPECT_EQ(Arguments.GetValue(TEXT("title")), TOptional<FString>(FString()));
}

TEST(EditorViewsDeathTest, ArgumentsAViewDoesNotTakeStopTheProgram)
{
	EXPECT_DEATH(FEditorViewArguments(MakeOptions()).Add(TEXT("size"), TEXT("1")), "The view has no option \"size\"");
	// Accepted values are spelt exactly.
	EXPECT_DEATH(FEditorViewArguments(MakeOptions()).Add(TEXT("colour"), TEXT("red")), "The view's option \"colour\" does not take \"red\"");
	EXPECT_DEATH(
		{
			FEditorViewArguments Arguments(MakeOptions());
			Arguments.Add(TEXT("title"), TEXT("A"));
			Arguments.Add(TEXT("title"), TEXT("B"));
		},
		"The view's option \"title\" is given once");
	EXPECT_DEATH(FEditorViewArguments(MakeOptions()).GetValue(TEXT("tag")), "The view's option \"tag\" may have several values");
}
