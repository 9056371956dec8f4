#include "Framework/Application/SlateApplication.h"
#include "Framework/Commands/Commands.h"
#include "Framework/Commands/UIAction.h"
#include "Framework/Commands/UICommandInfo.h"
#include "Framework/Commands/UICommandList.h"
#include "Framework/MultiBox/MultiBoxBuilder.h"
#include "Framework/Notifications/NotificationManager.h"
#include "Headless/HeadlessMenus.h"
#include "Headless/HeadlessNotifications.h"
#include "Widgets/Notifications/SNotificationList.h"

#include <climits>
#include <gtest/gtest.h>

#define LOCTEXT_NAMESPACE "MenuAndNotificationTests"

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

	class MenuBuilderTests : public ::testing::Test
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

	TEST_F(MenuBuilderTests, CommandEntriesTakeLabelToolTipAndTypeFromTheCommand)
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

	TEST_F(MenuBuilderTests, OverridesReplaceTheCommandsLabelAndToolTip)
	{
		FMenuBuilder Builder(true, CommandList);
		Builder.AddMenuEntry(Commands().Start, NAME_None, LOCTEXT("GoLive", "Go Live"), LOCTEXT("GoLiveTip", "Goes live now"));

		const TArray<FMenuLine> Lines = UE::Headless::ReadMenu(Builder.MakeWidget());

		ASSERT_EQ(Lines.Num(), 1);
		EXPECT_EQ(Lines[0].Label.ToString(), TEXT("Go Live"));
		EXPECT_EQ(Lines[0].ToolTip.ToString(), TEXT("Goes live now"));
	}

	TEST_F(MenuBuilderTests, CheckAndEnabledStatesAreReadFromTheCommandListWhenShown)
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

	TEST_F(MenuBuilderTests, CommandsMissingFromTheListShowEnabledButRunNothing)
	{
		FMenuBuilder Builder(true, MakeShared<FUICommandList>());
		Builder.AddMenuEntry(Commands().Start);
		const TSharedRef<SWidget> Menu = Builder.MakeWidget();

		EXPECT_TRUE(UE::Headless::ReadMenu(Menu)[0].bEnabled);
		EXPECT_FALSE(UE::Headless::ClickMenuEntry(Menu, TEXT("Start Stream")));
		EXPECT_EQ(StartCount, 0);
	}

	TEST_F(MenuBuilderTests, SectionHeadingAppearsOnlyWithTheSectionsFirstEntry)
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

	TEST_F(MenuBuilderTests, SectionsWithoutHeadingTextAddNoHeading)
	{
		FMenuBuilder Builder(true, CommandList);
		Builder.BeginSection(TEXT("Plain"));
		Builder.AddMenuEntry(Commands().Start);
		Builder.EndSection();

		EXPECT_EQ(Kinds(UE::Headless::ReadMenu(Builder.MakeWidget())), TArray<EMenuLineKind>({EMenuLineKind::Entry}));
	}

	TEST_F(MenuBuilderTests, SeparatorIsNeverTheFirstBlock)
	{
		FMenuBuilder Builder(true, CommandList);
		Builder.AddSeparator();
		Builder.AddMenuEntry(Commands().Start);
		Builder.AddMenuSeparator();
		Builder.AddMenuEntry(Commands().Mute);

		EXPECT_EQ(Kinds(UE::Headless::ReadMenu(Builder.MakeWidget())), TArray<EMenuLineKind>({EMenuLineKind::Entry, EMenuLineKind::Separator, EMenuLineKind::Entry}));
	}

	TEST_F(MenuBuilderTests, BeginningASectionInsideAnotherIsFatal)
	{
		FMenuBuilder Builder(true, CommandList);
		Builder.BeginSection(TEXT("Outer"));
		EXPECT_DEATH(Builder.BeginSection(TEXT("Inner")), "Assertion failed");
	}

	TEST_F(MenuBuilderTests, MenusAreLimitedToAThousandPixelsUnlessToldOtherwise)
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

	TEST_F(MenuBuilderTests, ActionEntriesUseTheirOwnLabelAndType)
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

	class NotificationTests : public ::testing::Test
	{
	protected:
		virtual void SetUp() override
		{
			FSlateApplication::Create();
			UE::Headless::ResetNotifications();
		}

		virtual void TearDown() override
		{
			UE::Headless::ResetNotifications();
			FSlateApplication::Shutdown();
		}

		static FNotificationInfo MakeInfo(bool bFireAndForget)
		{
			FNotificationInfo Info(LOCTEXT("Streaming", "Streaming started"));
			Info.bFireAndForget = bFireAndForget;
			Info.FadeInDuration = 0.5f;
			Info.ExpireDuration = 1.0f;
			Info.FadeOutDuration = 2.0f;
			return Info;
		}

		static bool IsShown(const TWeakPtr<SNotificationItem>& Item)
		{
			const TSharedPtr<SNotificationItem> Pinned = Item.Pin();
			return Pinned.IsValid() && FSlateNotificationManager::Get().GetNotifications().Contains(Pinned.ToSharedRef());
		}
	};

	TEST_F(NotificationTests, ButtonsAreVisibleOnlyInTheStateTheyWereGivenFor)
	{
		const FNotificationButtonInfo Default(LOCTEXT("Cancel", "Cancel"), FText::GetEmpty(), FSimpleDelegate());
		EXPECT_EQ(Default.VisibilityOnPending, EVisibility::Visible);
		EXPECT_EQ(Default.VisibilityOnNone, EVisibility::Collapsed);
		EXPECT_EQ(Default.VisibilityOnSuccess, EVisibility::Collapsed);
		EXPECT_EQ(Default.VisibilityOnFail, EVisibility::Collapsed);

		const FNotificationButtonInfo OnFail(LOCTEXT("Retry", "Retry"), FText::GetEmpty(), FSimpleDelegate(), SNotificationItem::CS_Fail);
		EXPECT_EQ(OnFail.VisibilityOnFail, EVisibility::Visible);
		EXPECT_EQ(OnFail.VisibilityOnPending, EVisibility::Collapsed);
	}

	TEST_F(NotificationTests, NewNotificationsStartWithNoCompletionStateAndKeepTheOneSet)
	{
		const TSharedPtr<SNotificationItem> Item = FSlateNotificationManager::Get().AddNotification(MakeInfo(false));
		ASSERT_TRUE(Item.IsValid());
		EXPECT_EQ(Item->GetCompletionState(), SNotificationItem::CS_None);

		Item->SetCompletionState(SNotificationItem::CS_Pending);
		EXPECT_EQ(Item->GetCompletionState(), SNotificationItem::CS_Pending);
		Item->SetCompletionState(SNotificationItem::CS_Success);
		EXPECT_EQ(Item->GetCompletionState(), SNotificationItem::CS_Success);
	}

	TEST_F(NotificationTests, NotificationsThatAreNotFireAndForgetStayUntilToldToGo)
	{
		TWeakPtr<SNotificationItem> Item = FSlateNotificationManager::Get().AddNotification(MakeInfo(false));
		EXPECT_FALSE(UE::Headless::IsFireAndForget(*Item.Pin()));

		UE::Headless::AdvanceNotificationTime(60.0f);
		EXPECT_TRUE(IsShown(Item));
	}

	TEST_F(NotificationTests, FireAndForgetNotificationsWaitForFadeInAndExpireThenFadeOut)
	{
		TWeakPtr<SNotificationItem> Item = FSlateNotificationManager::Get().AddNotification(MakeInfo(true));

		// Fade-in 0.5 s + expire 1 s before the 2 s fade-out starts: gone after 3.5 s.
		UE::Headless::AdvanceNotificationTime(1.4f);
		EXPECT_TRUE(IsShown(Item));
		UE::Headless::AdvanceNotificationTime(1.9f);
		EXPECT_TRUE(IsShown(Item)) << "Still fading out at 3.3 s";
		UE::Headless::AdvanceNotificationTime(0.3f);
		EXPECT_FALSE(IsShown(Item));
		EXPECT_FALSE(Item.IsValid()) << "The manager held the last reference to a finished notification";
	}

	TEST_F(NotificationTests, ExpireAndFadeoutCountsFromWhenItIsCalled)
	{
		TSharedPtr<SNotificationItem> Pinned = FSlateNotificationManager::Get().AddNotification(MakeInfo(false));
		Pinned->SetCompletionState(SNotificationItem::CS_Pending);
		const TWeakPtr<SNotificationItem> Item = Pinned;

		UE::Headless::AdvanceNotificationTime(10.0f);
		Pinned->SetCompletionState(SNotificationItem::CS_Success);
		Pinned->ExpireAndFadeout();
		Pinned.Reset();

		UE::Headless::AdvanceNotificationTime(3.3f);
		EXPECT_TRUE(IsShown(Item));
		UE::Headless::AdvanceNotificationTime(0.3f);
		EXPECT_FALSE(IsShown(Item));
		EXPECT_FALSE(Item.IsValid());
	}

	TEST_F(NotificationTests, DurationsSetWhileWaitingToExpireStillCount)
	{
		TSharedPtr<SNotificationItem> Pinned = FSlateNotificationManager::Get().AddNotification(MakeInfo(true));
		const TWeakPtr<SNotificationItem> Item = Pinned;
		Pinned->SetExpireDuration(5.0f);
		Pinned.Reset();

		// Fade-in 0.5 s + expire 5 s + fade-out 2 s.
		UE::Headless::AdvanceNotificationTime(7.3f);
		EXPECT_TRUE(IsShown(Item));
		UE::Headless::AdvanceNotificationTime(0.4f);
		EXPECT_FALSE(IsShown(Item));
	}

	TEST_F(NotificationTests, FadeoutRemovesAfterTheFadeOutDurationAlone)
	{
		TSharedPtr<SNotificationItem> Pinned = FSlateNotificationManager::Get().AddNotification(MakeInfo(false));
		const TWeakPtr<SNotificationItem> Item = Pinned;
		Pinned->Fadeout();
		Pinned.Reset();

		UE::Headless::AdvanceNotificationTime(1.9f);
		EXPECT_TRUE(IsShown(Item));
		UE::Headless::AdvanceNotificationTime(0.2f);
		EXPECT_FALSE(Item.IsValid());
	}

	TEST_F(NotificationTests, ButtonsKeepTheirCallbacks)
	{
		int32 Clicks = 0;
		FNotificationInfo Info = MakeInfo(false);
		Info.ButtonDetails.Add(FNotificationButtonInfo(LOCTEXT("Stop", "Stop"), LOCTEXT("StopTip", "Stops the stream"), FSimpleDelegate::CreateLambda([&Clicks]()
																															{ ++Clicks; })));
		const TSharedPtr<SNotificationItem> Item = FSlateNotificationManager::Get().AddNotification(Info);

		const FNotificationButtonInfo* Button = UE::Headless::FindNotificationButton(*Item, TEXT("Stop"));
		ASSERT_NE(Button, nullptr);
		EXPECT_EQ(UE::Headless::FindNotificationButton(*Item, TEXT("Start")), nullptr);
		Button->Callback.ExecuteIfBound();
		EXPECT_EQ(Clicks, 1);
	}
}

#undef LOCTEXT_NAMESPACE
