#include "Framework/Application/SlateApplication.h"
#include "Framework/Commands/Commands.h"
#include "Framework/Commands/UIAction.h"
#include "Framework/Commands/UICommandInfo.h"
#include "Framework/Commands/UICommandList.h"
#include "Framework/MultiBox/MultiBoxBuilder.h"
#include "HeadlessMenus.h"
#include "HeadlessSlateRenderer.h"
#include "Styling/CoreStyle.h"
#include "Support/PaintedScene.h"
#include "WidgetDriver.h"
#include "WidgetRenderer.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SCheckBox.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/Layout/SSeparator.h"
#include "Widgets/Text/STextBlock.h"

#include <gtest/gtest.h>

#define LOCTEXT_NAMESPACE "MenuWidgetTests"

namespace
{
	class FMenuWidgetProbeCommands : public TCommands<FMenuWidgetProbeCommands>
	{
	public:
		FMenuWidgetProbeCommands()
			: TCommands<FMenuWidgetProbeCommands>(TEXT("MenuWidgetProbeCommands"), LOCTEXT("MenuWidgetProbeContext", "Menu Widget Probe"), NAME_None, TEXT("MenuWidgetProbeStyle"))
		{
		}

		virtual void RegisterCommands() override
		{
			UI_COMMAND(Start, "Start Stream", "Starts the stream", EUserInterfaceActionType::Button, FInputChord(EKeys::C, false, true));
			UI_COMMAND(Mute, "Mute Audio", "Mutes the stream's audio", EUserInterfaceActionType::ToggleButton, FInputChord());
		}

		TSharedPtr<FUICommandInfo> Start;
		TSharedPtr<FUICommandInfo> Mute;
	};

	/** A window-sized canvas large enough for the menus and sub-menus these tests open. */
	const FVector2D CanvasSize(600.0, 400.0);

	class MenuWidget : public ::testing::Test
	{
	protected:
		virtual void SetUp() override
		{
			FSlateApplication::Create();
			FSlateApplication::Get().InitializeRenderer(MakeShared<FHeadlessSlateRenderer>());
			FMenuWidgetProbeCommands::Register();
			CommandList = MakeShared<FUICommandList>();
			CommandList->MapAction(Commands().Start, FExecuteAction::CreateLambda([this]()
														 { ++StartCount; }));
			CommandList->MapAction(Commands().Mute, FExecuteAction::CreateLambda([this]()
														{ bMuted = !bMuted; }),
				FCanExecuteAction(), FIsActionChecked::CreateLambda([this]()
										 { return bMuted; }));
		}

		virtual void TearDown() override
		{
			FMenuWidgetProbeCommands::Unregister();
			FSlateApplication::Shutdown();
		}

		static const FMenuWidgetProbeCommands& Commands() { return FMenuWidgetProbeCommands::Get(); }

		/** Two sections with headings: a button with a shortcut, then a toggle. */
		TSharedRef<SWidget> MakeTwoSectionMenu()
		{
			FMenuBuilder Builder(true, CommandList);
			Builder.BeginSection(TEXT("StreamSection"), LOCTEXT("StreamHeading", "Stream"));
			Builder.AddMenuEntry(Commands().Start);
			Builder.EndSection();
			Builder.BeginSection(TEXT("AudioSection"), LOCTEXT("AudioHeading", "Audio"));
			Builder.AddMenuEntry(Commands().Mute);
			Builder.EndSection();
			return Builder.MakeWidget();
		}

		TSharedPtr<FUICommandList> CommandList;
		int32 StartCount = 0;
		bool bMuted = false;
	};

	TEST_F(MenuWidget, HeadingsAndEntriesAreStackedInTheOrderTheyWereAdded)
	{
		const FPaintedScene Scene(UE::Headless::MakeMenuWindow(MakeTwoSectionMenu()), CanvasSize);

		// Headings show their text in capitals, in the small, spaced heading font.
		EXPECT_EQ(Scene.GetTextsTopToBottom(), TArray<FString>({TEXT("STREAM"), TEXT("Start Stream"), TEXT("Ctrl+C"), TEXT("AUDIO"), TEXT("Mute Audio")}));
		const FPaintedScene::FLine* Heading = Scene.FindLine(TEXT("STREAM"));
		ASSERT_NE(Heading, nullptr);
		EXPECT_EQ(Heading->Font.Size, 7);
		EXPECT_EQ(Heading->Font.TypefaceFontName, FName(TEXT("Bold")));
		EXPECT_EQ(Heading->Font.LetterSpacing, 250);
		// The menu keeps 8 units clear of the window's top edge, then the heading's own padding.
		EXPECT_NEAR(Heading->Rect.Top, 14.0, 1.0);
		EXPECT_NEAR(Heading->Rect.Left, 12.0, 0.5);
	}

	TEST_F(MenuWidget, LabelsLineUpPastTheCheckBoxColumn)
	{
		const FPaintedScene Scene(UE::Headless::MakeMenuWindow(MakeTwoSectionMenu()), CanvasSize);

		const FPaintedScene::FLine* Button = Scene.FindLine(TEXT("Start Stream"));
		const FPaintedScene::FLine* Toggle = Scene.FindLine(TEXT("Mute Audio"));
		ASSERT_TRUE(Button && Toggle);
		// The button has no check box, yet its label starts where the toggle's does.
		EXPECT_FLOAT_EQ(Button->Rect.Left, Toggle->Rect.Left);
		EXPECT_GT(Button->Rect.Left, 12.0f + 18.0f);
	}

	TEST_F(MenuWidget, OnlyToggleEntriesShowACheckBoxAndItFollowsTheCheckState)
	{
		const TSharedRef<SWidget> Menu = MakeTwoSectionMenu();
		TArray<TSharedRef<SCheckBox>> ShownCheckBoxes;
		for (const TSharedRef<SWidget>& Widget : FWidgetDriver::FindAllWidgets(Menu, TEXT("SCheckBox")))
		{
			if (FWidgetDriver::IsShown(Widget))
			{
				ShownCheckBoxes.Add(StaticCastSharedRef<SCheckBox>(Widget));
			}
		}
		ASSERT_EQ(ShownCheckBoxes.Num(), 1);
		EXPECT_EQ(ShownCheckBoxes[0]->GetCheckedState(), ECheckBoxState::Unchecked);

		// Changed elsewhere, the already built menu shows the new state.
		bMuted = true;
		EXPECT_EQ(ShownCheckBoxes[0]->GetCheckedState(), ECheckBoxState::Checked);

		// Ticking the box runs the entry's action.
		EXPECT_TRUE(FWidgetDriver::ToggleCheckBox(ShownCheckBoxes[0]));
		EXPECT_FALSE(bMuted);
	}

	TEST_F(MenuWidget, TheShortcutStandsAtTheRightOfItsLabelInTheSmallFont)
	{
		const FPaintedScene Scene(UE::Headless::MakeMenuWindow(MakeTwoSectionMenu()), CanvasSize);

		const FPaintedScene::FLine* Label = Scene.FindLine(TEXT("Start Stream"));
		const FPaintedScene::FLine* Shortcut = Scene.FindLine(TEXT("Ctrl+C"));
		ASSERT_TRUE(Label && Shortcut);
		EXPECT_GE(Shortcut->Rect.Left, Label->Rect.Right + 25.0f);
		EXPECT_EQ(Shortcut->Font.Size, 8);
		// Only the entry with a shortcut shows one.
		EXPECT_EQ(Scene.GetTextsTopToBottom().FilterByPredicate([](const FString& Text)
												 { return Text.StartsWith(TEXT("Ctrl+")); })
					  .Num(),
			1);
	}

	TEST_F(MenuWidget, ClickingAnEntryRunsItsCommand)
	{
		const TSharedRef<SWidget> Menu = MakeTwoSectionMenu();
		const TSharedPtr<SButton> Entry = FWidgetDriver::Find<SButton>(Menu, TEXT("SButton"), FString(TEXT("Start Stream")));
		ASSERT_TRUE(Entry.IsValid());

		EXPECT_TRUE(FWidgetDriver::Click(Entry.ToSharedRef()));
		EXPECT_EQ(StartCount, 1);
	}

	TEST_F(MenuWidget, ASubMenuEntryShowsAnArrowAndOpensItsMenuToTheRight)
	{
		FMenuBuilder Builder(true, CommandList);
		Builder.AddSubMenu(LOCTEXT("More", "More"), LOCTEXT("MoreTip", "More commands"), FNewMenuDelegate::CreateLambda([this](FMenuBuilder& SubMenu)
																							 { SubMenu.AddMenuEntry(Commands().Mute); }));
		const TSharedRef<SWidget> Menu = Builder.MakeWidget();
		// The menu's window at its own size in the top left corner, as the pop-up it opens in.
		const TSharedRef<SWidget> Root = SNew(SBox).HAlign(HAlign_Left).VAlign(VAlign_Top)[UE::Headless::MakeMenuWindow(Menu)];

		const FPaintedScene Closed(Root, CanvasSize);
		const TArray<FSlateRect> Arrows = Closed.FindImage(*FCoreStyle::Get().GetBrush("Menu.SubMenuIndicator"));
		ASSERT_EQ(Arrows.Num(), 1);
		EXPECT_GT(Arrows[0].Left, Closed.FindLine(TEXT("More"))->Rect.Right);
		EXPECT_EQ(Closed.FindLine(TEXT("Mute Audio")), nullptr);

		const TSharedPtr<SButton> Entry = FWidgetDriver::Find<SButton>(Menu, TEXT("SButton"), FString(TEXT("More")));
		ASSERT_TRUE(Entry.IsValid());
		EXPECT_TRUE(FWidgetDriver::Click(Entry.ToSharedRef()));
		const FPaintedScene Open(UE::Headless::MakePopupLayer(Root), CanvasSize);
		const FPaintedScene::FLine* SubMenuEntry = Open.FindLine(TEXT("Mute Audio"));
		ASSERT_NE(SubMenuEntry, nullptr);
		EXPECT_GT(SubMenuEntry->Rect.Left, Arrows[0].Right);
	}

	TEST_F(MenuWidget, FollowingSeparatorsDrawOneLine)
	{
		FMenuBuilder Builder(true, CommandList);
		Builder.AddMenuEntry(Commands().Start);
		Builder.AddSeparator();
		Builder.AddSeparator();
		Builder.AddMenuEntry(Commands().Mute);
		const TSharedRef<SWidget> Menu = Builder.MakeWidget();

		EXPECT_EQ(FWidgetDriver::FindAllWidgets(Menu, TEXT("SSeparator")).Num(), 1);
		EXPECT_EQ(UE::Headless::ReadMenu(Menu).Num(), 4) << "The menu keeps both separators as blocks";
	}

	TEST_F(MenuWidget, MenuWindowsDrawTheSameBytesEveryTimeOnTheDropdownColour)
	{
		const TSharedRef<SWidget> Window = UE::Headless::MakeMenuWindow(MakeTwoSectionMenu());
		const FRenderedImage First = FWidgetRenderer::RenderWidget(Window, 240, 140);
		const FRenderedImage Second = FWidgetRenderer::RenderWidget(Window, 240, 140);
		EXPECT_TRUE(First.Data == Second.Data);
		EXPECT_EQ(First.GetPixel(120, 4), FLinearColor(FColor::FromHex(TEXT("383838FF"))).ToFColor(true));
		// The outline runs along the window's edge.
		EXPECT_EQ(First.GetPixel(0, 70), FLinearColor(FColor::FromHex(TEXT("4C4C4CFF"))).ToFColor(true));
	}
}

#undef LOCTEXT_NAMESPACE
