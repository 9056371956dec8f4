#include "Framework/Application/SlateApplication.h"
#include "Framework/Commands/Commands.h"
#include "Framework/Commands/UIAction.h"
#include "Framework/Commands/UICommandInfo.h"
#include "Framework/Commands/UICommandList.h"
#include "Framework/MultiBox/MultiBoxBuilder.h"
#include "HeadlessMenus.h"

#include <climits>
#include <gtest/gtest.h>

#define LOCTEXT_NAMESPACE "MenuBuilderTests"

namespace
{
	using UE::Headless::EMenuLineKind;
	using UE::Headless::FMenuLine;

	class FMenuProbeCommands : public TCommands<FMenuProbeCommands>
	{
	public:
		FMenuProbeCommands()
			: TCommands<FMenuProbeCommands>(TEXT("MenuProbeCommands"), LOCTEXT("MenuProbeContext", "Menu Probe"), NAME_None, TEXT("MenuProbeStyle"))
		{
		}

		virtual void RegisterCommands() override
		{
			UI_COMMAND(Start, "Start Stream", "Starts the stream", EUserInterfaceActionType::Button, FInputChord());
			UI_COMMAND(Mute, "Mute Audio", "Mutes the stream's audio", EUserInterfaceActionType::ToggleButton, FInputChord());
		}

		TSharedPtr<FUICommandInfo> Start;
		TSharedPtr<FUICommandInfo> Mute;
	};

	class MenuBuilder : public ::testing::Test
	{
	protected:
		virtual void SetUp() override
		{
			FSlateApplication::Create();
			FMenuProbeCommands::Register();
			CommandList = MakeShared<FUICommandList>();
			CommandList->MapAction(Commands().Start, FExecuteAction::CreateLambda([this]()
														 { ++StartCount; }),
				FCanExecuteAction::CreateLambda([this]()
					{ return bCanStart; }));
			CommandList->MapAction(Commands().Mute, FExecuteAction::CreateLambda([this]()
														{ bMuted = !bMuted; }),
				FCanExecuteAction(), FIsActionChecked::CreateLambda([this]()
										 { return bMuted; }));
		}

		virtual void TearDown() override
		{
			FMenuProbeCommands::Unregister();
			FSlateApplication::Shutdown();
		}

		static const FMenuProbeCommands& Commands() { return FMenuProbeCommands::Get(); }

		static TArray<EMenuLineKind> Kinds(const TArray<FMenuLine>& Lines)
		{
			TArray<EMenuLineKind> Result;
			for (const FMenuLine& Line : Lines)
			{
				Result.Add(Line.Kind);
			}
			return Result;
		}

		TSharedPtr<FUICommandList> CommandList;
		int32 StartCount = 0;
		bool bCanStart = true;
		bool bMuted = false;
	};

	TEST_F(MenuBuilder, CommandEntriesTakeLabelToolTipAndTypeFromTheCommand)
	{
		FMenuBuilder Builder(true, CommandList);
		Builder.AddMenuEntry(Commands().Start);
		Builder.AddMenuEntry(Commands().Mute);

		const TArray<FMenuLine> Lines = UE::Headless::ReadMenu(Builder.MakeWidget());

		ASSERT_EQ(Lines.Num(), 2);
		EXPECT_EQ(Lines[0].Label.ToString(), TEXT("Start Stream"));
		EXPECT_EQ(Lines[0].ToolTip.ToString(), TEXT("Starts the stream"));
		EXPECT_EQ(Lines[0].Type, EUserInterfaceActionType::Button);
		EXPECT_EQ(Lines[0].CommandName, FName(TEXT("Start")));
		EXPECT_EQ(Lines[1].Type, EUserInterfaceActionType::ToggleButton);
	}

	TEST_F(MenuBuilder, OverridesReplaceTheCommandsLabelAndToolTip)
	{
		FMenuBuilder Builder(true, CommandList);
		Builder.AddMenuEntry(Commands().Start, NAME_None, LOCTEXT("GoLive", "Go Live"), LOCTEXT("GoLiveTip", "Goes live now"));

		const TArray<FMenuLine> Lines = UE::Headless::ReadMenu(Builder.MakeWidget());

		ASSERT_EQ(Lines.Num(), 1);
		EXPECT_EQ(Lines[0].Label.ToString(), TEXT("Go Live"));
		EXPECT_EQ(Lines[0].ToolTip.ToString(), TEXT("Goes live now"));
	}

	TEST_F(MenuBuilder, CheckAndEnabledStatesAreReadFromTheCommandListWhenShown)
	{
		FMenuBuilder Builder(true, CommandList);
		Builder.AddMenuEntry(Commands().Start);
		Builder.AddMenuEntry(Commands().Mute);
		const TSharedRef<SWidget> Menu = Builder.MakeWidget();

		EXPECT_EQ(UE::Headless::ReadMenu(Menu)[1].CheckState, ECheckBoxState::Unchecked);
		EXPECT_TRUE(UE::Headless::ClickMenuEntry(Menu, TEXT("Mute Audio")));
		EXPECT_EQ(UE::Headless::ReadMenu(Menu)[1].CheckState, ECheckBoxState::Checked);

		bCanStart = false;
		EXPECT_FALSE(UE::Headless::ReadMenu(Menu)[0].bEnabled);
		EXPECT_FALSE(UE::Headless::ClickMenuEntry(Menu, TEXT("Start Stream")));
		EXPECT_EQ(StartCount, 0);
		bCanStart = true;
		EXPECT_TRUE(UE::Headless::ClickMenuEntry(Menu, TEXT("Start Stream")));
		EXPECT_EQ(StartCount, 1);
	}

	TEST_F(MenuBuilder, CommandsMissingFromTheListShowEnabledButRunNothing)
	{
		FMenuBuilder Builder(true, MakeShared<FUICommandList>());
		Builder.AddMenuEntry(Commands().Start);
		const TSharedRef<SWidget> Menu = Builder.MakeWidget();

		EXPECT_TRUE(UE::Headless::ReadMenu(Menu)[0].bEnabled);
		EXPECT_FALSE(UE::Headless::ClickMenuEntry(Menu, TEXT("Start Stream")));
		EXPECT_EQ(StartCount, 0);
	}

	TEST_F(MenuBuilder, SectionHeadingAppearsOnlyWithTheSectionsFirstEntry)
	{
		FMenuBuilder Builder(true, CommandList);
		Builder.BeginSection(TEXT("Empty"), LOCTEXT("EmptyHeading", "Nothing Here"));
		Builder.EndSection();
		Builder.BeginSection(TEXT("Stream"), LOCTEXT("StreamHeading", "Stream"));
		Builder.AddMenuEntry(Commands().Start);
		Builder.AddMenuEntry(Commands().Mute);
		Builder.EndSection();

		const TArray<FMenuLine> Lines = UE::Headless::ReadMenu(Builder.MakeWidget());

		EXPECT_EQ(Kinds(Lines), TArray<EMenuLineKind>({EMenuLineKind::Heading, EMenuLineKind::Entry, EMenuLineKind::Entry}));
		EXPECT_EQ(Lines[0].Label.ToString(), TEXT("Stream"));
		EXPECT_EQ(Lines[0].ExtensionHook, FName(TEXT("Stream")));
	}

	TEST_F(MenuBuilder, SectionsWithoutHeadingTextAddNoHeading)
	{
		FMenuBuilder Builder(true, CommandList);
		Builder.BeginSection(TEXT("Plain"));
		Builder.AddMenuEntry(Commands().Start);
		Builder.EndSection();

		EXPECT_EQ(Kinds(UE::Headless::ReadMenu(Builder.MakeWidget())), TArray<EMenuLineKind>({EMenuLineKind::Entry}));
	}

	TEST_F(MenuBuilder, SeparatorIsNeverTheFirstBlock)
	{
		FMenuBuilder Builder(true, CommandList);
		Builder.AddSeparator();
		Builder.AddMenuEntry(Commands().Start);
		Builder.AddMenuSeparator();
		Builder.AddMenuEntry(Commands().Mute);

		EXPECT_EQ(Kinds(UE::Headless::ReadMenu(Builder.MakeWidget())), TArray<EMenuLineKind>({EMenuLineKind::Entry, EMenuLineKind::Separator, EMenuLineKind::Entry}));
	}

	TEST_F(MenuBuilder, BeginningASectionInsideAnotherIsFatal)
	{
		FMenuBuilder Builder(true, CommandList);
		Builder.BeginSection(TEXT("Outer"));
		EXPECT_DEATH(Builder.BeginSection(TEXT("Inner")), "Assertion failed");
	}

	TEST_F(MenuBuilder, MenusAreLimitedToAThousandPixelsUnlessToldOtherwise)
	{
		FMenuBuilder Builder(true, CommandList);
		Builder.AddMenuEntry(Commands().Start);

		const TOptional<float> DefaultHeight = UE::Headless::GetMenuMaxHeight(Builder.MakeWidget());
		ASSERT_TRUE(DefaultHeight.IsSet());
		EXPECT_FLOAT_EQ(DefaultHeight.GetValue(), 1000.0f);

		const TOptional<float> SetHeight = UE::Headless::GetMenuMaxHeight(Builder.MakeWidget(nullptr, 240));
		ASSERT_TRUE(SetHeight.IsSet());
		EXPECT_FLOAT_EQ(SetHeight.GetValue(), 240.0f);

		EXPECT_FALSE(UE::Headless::GetMenuMaxHeight(Builder.MakeWidget(nullptr, INT_MAX)).IsSet());
	}

	TEST_F(MenuBuilder, ActionEntriesUseTheirOwnLabelAndType)
	{
		bool bRan = false;
		FMenuBuilder Builder(true, nullptr);
		Builder.AddMenuEntry(LOCTEXT("Direct", "Direct Action"), LOCTEXT("DirectTip", "Runs directly"), FSlateIcon(), FUIAction(FExecuteAction::CreateLambda([&bRan]()
																														  { bRan = true; })),
			NAME_None, EUserInterfaceActionType::Check);

		const TSharedRef<SWidget> Menu = Builder.MakeWidget();
		const TArray<FMenuLine> Lines = UE::Headless::ReadMenu(Menu);

		ASSERT_EQ(Lines.Num(), 1);
		EXPECT_EQ(Lines[0].Label.ToString(), TEXT("Direct Action"));
		EXPECT_EQ(Lines[0].Type, EUserInterfaceActionType::Check);
		EXPECT_EQ(Lines[0].CommandName, NAME_None);
		EXPECT_TRUE(UE::Headless::ClickMenuEntry(Menu, TEXT("Direct Action")));
		EXPECT_TRUE(bRan);
	}
}

#undef LOCTEXT_NAMESPACE
