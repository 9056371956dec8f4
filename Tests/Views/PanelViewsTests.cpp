#include "AuthDelegates.h"
#include "HeadlessEditorSession.h"
#include "HeadlessNotifications.h"
#include "HeadlessSaveGames.h"
#include "KyroBlueprintFunctionLibrary.h"
#include "Views/EditorViews.h"
#include "WidgetDriver.h"
#include "Widgets/Input/SButton.h"

#include <cstdio>
#include <gtest/gtest.h>

namespace
{
	/** A line of an outline and where it says its widget lies. */
	struct FOutlinePlace
	{
		FString Line;
		bool bPlaced = false;
		int32 X = 0;
		int32 Y = 0;
		int32 Width = 0;
		int32 Height = 0;

		int32 GetRight() const { return X + Width; }
		int32 GetBottom() const { return Y + Height; }
	};

	/** Shows the view with these option values, the others at their defaults. */
	FShownEditorView Show(const TCHAR* Name, const TArray<TPair<FString, FString>>& Values = {})
	{
		const FEditorView* View = FEditorViews::Find(Name);
		check(View);
		FEditorViewArguments Arguments(View->Options);
		for (const TPair<FString, FString>& Value : Values)
		{
			Arguments.Add(Value.Key, Value.Value);
		}
		return View->Show(Arguments);
	}

	TArray<FString> GetLines(const FString& Outline)
	{
		TArray<FString> Lines;
		Outline.ParseIntoArray(Lines, TEXT("\n"));
		return Lines;
	}

	/** The outline's lines that contain Text, with their places, top to bottom. */
	TArray<FOutlinePlace> FindLines(const FString& Outline, const FString& Text)
	{
		TArray<FOutlinePlace> Found;
		for (const FString& Line : GetLines(Outline))
		{
			if (!Line.Contains(Text, ESearchCase::CaseSensitive))
			{
				continue;
			}
			FOutlinePlace& Place = Found.AddDefaulted_GetRef();
			Place.Line = Line.TrimStart();
			// Hidden widgets have no place.
			const int32 At = Line.Find(TEXT(" at "), ESearchCase::CaseSensitive, ESearchDir::FromEnd);
			Place.bPlaced = At != INDEX_NONE && sscanf(TCHAR_TO_UTF8(*Line.Mid(At)), " at %d,%d %dx%d", &Place.X, &Place.Y, &Place.Width, &Place.Height) == 4;
		}
		return Found;
	}

	/** The one line of the outline that contains Text. */
	FOutlinePlace FindLine(const FString& Outline, const FString& Text)
	{
		const TArray<FOutlinePlace> Found = FindLines(Outline, Text);
		EXPECT_EQ(Found.Num(), 1) << TCHAR_TO_UTF8(*Text) << " in\n"
								  << TCHAR_TO_UTF8(*Outline);
		return Found.IsEmpty() ? FOutlinePlace() : Found[0];
	}

	/** The texts of the outline's shown lines of that widget type, top to bottom. */
	TArray<FString> GetTexts(const FString& Outline, const FString& Type)
	{
		TArray<FString> Texts;
		for (const FOutlinePlace& Place : FindLines(Outline, Type + TEXT(" \"")))
		{
			if (!Place.bPlaced)
			{
				continue;
			}
			FString Text;
			Place.Line.Split(TEXT("\""), nullptr, &Text);
			Text.Split(TEXT("\""), &Text, nullptr, ESearchCase::CaseSensitive, ESearchDir::FromEnd);
			Texts.Add(Text);
		}
		return Texts;
	}

	/** Expects the widget to lie wholly inside the view's picture. */
	void ExpectInside(const FOutlinePlace& Place, const FShownEditorView& Shown)
	{
		EXPECT_TRUE(Place.bPlaced) << TCHAR_TO_UTF8(*Place.Line);
		EXPECT_GE(Place.X, 0) << TCHAR_TO_UTF8(*Place.Line);
		EXPECT_GE(Place.Y, 0) << TCHAR_TO_UTF8(*Place.Line);
		EXPECT_LE(Place.GetRight(), Shown.GetSize().X) << TCHAR_TO_UTF8(*Place.Line);
		EXPECT_LE(Place.GetBottom(), Shown.GetSize().Y) << TCHAR_TO_UTF8(*Place.Line);
	}
}

TEST(PanelViews, TheToolbarsDropDownHangsBelowTheButtonWithEveryEntryInThePicture)
{
	const FShownEditorView Shown = Show(TEXT("toolbar-menu"));
	const FString Outline = Shown.DescribeOutline();

	EXPECT_EQ(Shown.GetProblem(), FString());
	EXPECT_EQ(GetTexts(Outline, TEXT("STextBlock")), TArray<FString>({TEXT("TOOLS"), TEXT("SETTINGS"), TEXT("ACCOUNT"), TEXT("SUPPORT")}));
	EXPECT_EQ(GetTexts(Outline, TEXT("SButton")), TArray<FString>({TEXT("Livestream Wizard"), TEXT("Editor Viewport Rendering"), TEXT("Runtime Viewport Rendering"), TEXT("Plugin Version"), TEXT("Affiliate Scheme"), TEXT("Knowledge Centre"), TEXT("Video Tutorials"), TEXT("Discord Community"), TEXT("Nimbrel Website")}));
	const FOutlinePlace Button = FindLine(Outline, TEXT("SComboButton \"Nimbrel\""));
	const FOutlinePlace First = FindLine(Outline, TEXT("SButton \"Livestream Wizard\""));
	const FOutlinePlace Last = FindLine(Outline, TEXT("SButton \"Nimbrel Website\""));
	EXPECT_GE(First.Y, Button.GetBottom());
	EXPECT_EQ(First.X, Button.X);
	ExpectInside(Button, Shown);
	ExpectInside(Last, Shown);
}

TEST(PanelViews, TheToolbarsTogglesShowTheRuntimesSwitchesAsSet)
{
	const FString Defaults = Show(TEXT("toolbar-menu")).DescribeOutline();
	EXPECT_EQ(FindLines(Defaults, TEXT("SButton \"Editor Viewport Rendering\" checked at ")).Num(), 1);
	EXPECT_EQ(FindLines(Defaults, TEXT("SButton \"Runtime Viewport Rendering\" checked at ")).Num(), 1);
	// The entries that are no toggles show no box.
	EXPECT_EQ(FindLines(Defaults, TEXT("SButton \"Plugin Version\" at ")).Num(), 1);

	{
		const FShownEditorView EditorOff = Show(TEXT("toolbar-menu"), {{TEXT("editor-viewport-rendering"), TEXT("off")}});
		EXPECT_EQ(EditorOff.GetProblem(), FString());
		const FString Outline = EditorOff.DescribeOutline();
		EXPECT_EQ(FindLines(Outline, TEXT("SButton \"Editor Viewport Rendering\" unchecked at ")).Num(), 1);
		EXPECT_EQ(FindLines(Outline, TEXT("SButton \"Runtime Viewport Rendering\" checked at ")).Num(), 1);
		EXPECT_FALSE(UKyroBlueprintFunctionLibrary::GetIsEditorViewportRendering());
		EXPECT_TRUE(UKyroBlueprintFunctionLibrary::GetIsRuntimeViewportRendering());
	}

	// Each view sets both switches again, whatever the last one left.
	const FString RuntimeOff = Show(TEXT("toolbar-menu"), {{TEXT("runtime-viewport-rendering"), TEXT("off")}}).DescribeOutline();
	EXPECT_EQ(FindLines(RuntimeOff, TEXT("SButton \"Editor Viewport Rendering\" checked at ")).Num(), 1);
	EXPECT_EQ(FindLines(RuntimeOff, TEXT("SButton \"Runtime Viewport Rendering\" unchecked at ")).Num(), 1);
}

TEST(PanelViews, TheVersionDialogShowsTheVersionsThePluginDeclares)
{
	FIntPoint DefaultSize;
	{
		const FShownEditorView Defaults = Show(TEXT("version-dialog"));
		const FString Outline = Defaults.DescribeOutline();
		EXPECT_TRUE(Outline.StartsWith(TEXT("SWindow at 0,0 "))) << TCHAR_TO_UTF8(*Outline);
		EXPECT_EQ(GetTexts(Outline, TEXT("STextBlock")), TArray<FString>({TEXT("Message"), TEXT("Plugin Version: 1.0 \\nEngine Version: 5.1.0"), TEXT("Copy Message")}));
		ExpectInside(FindLine(Outline, TEXT("SButton \"OK\"")), Defaults);
		ExpectInside(FindLine(Outline, TEXT("STextBlock \"Plugin Version: ")), Defaults);
		DefaultSize = Defaults.GetSize();
	}

	// A longer message widens the window, as the editor sizes it to its content.
	const FShownEditorView Declared = Show(TEXT("version-dialog"), {{TEXT("plugin-version"), TEXT("2.4.1-preview (build 3177)")}, {TEXT("engine-version"), TEXT("5.1.1")}});
	EXPECT_EQ(Declared.GetProblem(), FString());
	const FOutlinePlace Message = FindLine(Declared.DescribeOutline(), TEXT("STextBlock \"Plugin Version: 2.4.1-preview (build 3177) \\nEngine Version: 5.1.1\""));
	ExpectInside(Message, Declared);
	EXPECT_GT(Declared.GetSize().X, DefaultSize.X);
}

TEST(PanelViews, TheUpdateNotificationOffersTheAnnouncedVersionWithThreeButtonsInARow)
{
	{
		const FShownEditorView Defaults = Show(TEXT("update-notification"));
		const FString Outline = Defaults.DescribeOutline();
		EXPECT_EQ(GetTexts(Outline, TEXT("STextBlock")), TArray<FString>({TEXT("Nimbrel Castellan Upgrade\\nVersion 1.5 Available\\n")}));
		EXPECT_EQ(GetTexts(Outline, TEXT("SButton")), TArray<FString>({TEXT("Download now"), TEXT("Remind me later"), TEXT("Skip version")}));
		const TArray<FOutlinePlace> Buttons = FindLines(Outline, TEXT("SButton \""));
		ASSERT_EQ(Buttons.Num(), 3);
		EXPECT_EQ(Buttons[0].Y, Buttons[2].Y);
		ExpectInside(Buttons[2], Defaults);
		EXPECT_EQ(Defaults.GetSize().X, 420 + 2 * 16);
	}

	const FString Offered = Show(TEXT("update-notification"), {{TEXT("version"), TEXT("2.0")}}).DescribeOutline();
	EXPECT_EQ(GetTexts(Offered, TEXT("STextBlock")), TArray<FString>({TEXT("Nimbrel Castellan Upgrade\\nVersion 2.0 Available\\n")}));
}

TEST(PanelViews, TheUpdateNotificationShowsAlsoAfterAnEarlierSessionSkippedItsVersion)
{
	{
		FHeadlessEditorSession Session;
		AuthDelegates::OnUpgradeAvailable.Broadcast(TEXT("1.5"), TEXT("https://www.example.com/download/1.5"));
		ASSERT_EQ(UE::Headless::GetNotifications().Num(), 1);
		const TSharedPtr<SButton> Skip = FWidgetDriver::Find<SButton>(UE::Headless::GetNotifications()[0], TEXT("SButton"), FString(TEXT("Skip version")));
		ASSERT_TRUE(Skip.IsValid());
		ASSERT_TRUE(FWidgetDriver::Click(Skip.ToSharedRef()));
	}

	const FShownEditorView Shown = Show(TEXT("update-notification"));

	EXPECT_EQ(Shown.GetProblem(), FString());
	EXPECT_EQ(FindLines(Shown.DescribeOutline(), TEXT("Version 1.5 Available")).Num(), 1);
	UE::Headless::ClearSaveGames();
}

TEST(PanelViews, ThePlacementCategoryListsTenClassesWithTheNDIModuleAndEightWithout)
{
	{
		const FShownEditorView Full = Show(TEXT("placement"));
		const FString Outline = Full.DescribeOutline();
		EXPECT_EQ(Full.GetProblem(), FString());
		EXPECT_EQ(FindLines(Outline, TEXT("STextBlock \"NIMBREL\"")).Num(), 1);
		const TArray<FOutlinePlace> Entries = FindLines(Outline, TEXT("SPlacementAssetEntry at "));
		ASSERT_EQ(Entries.Num(), 10);
		ExpectInside(Entries.Last(), Full);
		EXPECT_EQ(FindLines(Outline, TEXT("STextBlock \"Kyro NDI Sender Manager\"")).Num(), 1);
		EXPECT_EQ(FindLines(Outline, TEXT("STextBlock \"Kyro NDI Receiver Manager\"")).Num(), 1);
		// Each item with its class's thumbnail; the two NDI managers share one.
		EXPECT_EQ(FindLines(Outline, TEXT("SImage CineCapture_64x.png at ")).Num(), 1);
		EXPECT_EQ(FindLines(Outline, TEXT("SImage NDI_64x.png at ")).Num(), 2);
	}

	const FShownEditorView Partial = Show(TEXT("placement"), {{TEXT("ndi-module"), TEXT("absent")}});
	const FString Without = Partial.DescribeOutline();
	EXPECT_EQ(Partial.GetProblem(), FString());
	EXPECT_EQ(FindLines(Without, TEXT("SPlacementAssetEntry at ")).Num(), 8);
	EXPECT_EQ(FindLines(Without, TEXT("NDI")).Num(), 0);
	EXPECT_EQ(FindLines(Without, TEXT("STextBlock \"Kyro Virtual Webcam Output\"")).Num(), 1);
}

TEST(PanelViews, TheNewAssetGroupListsTheSoundWaveEntry)
{
	const FShownEditorView Shown = Show(TEXT("new-asset"));
	const FString Outline = Shown.DescribeOutline();

	EXPECT_EQ(Shown.GetProblem(), FString());
	const FOutlinePlace Entry = FindLine(Outline, TEXT("SButton \"Kyro NDI Sound Wave\""));
	ExpectInside(Entry, Shown);
	// The menu's window holds the entry with its margins.
	EXPECT_EQ(Entry.Width, Shown.GetSize().X);
	EXPECT_GT(Shown.GetSize().Y, Entry.Height);
}
