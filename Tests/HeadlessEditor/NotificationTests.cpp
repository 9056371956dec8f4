#include "Framework/Application/SlateApplication.h"
#include "Framework/Notifications/NotificationManager.h"
#include "HeadlessNotifications.h"
#include "Widgets/Notifications/SNotificationList.h"

#include <gtest/gtest.h>

#define LOCTEXT_NAMESPACE "NotificationTests"

namespace
{
	class Notification : public ::testing::Test
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
			return Pinned.IsValid() && UE::Headless::GetNotifications().Contains(Pinned.ToSharedRef());
		}
	};

	TEST_F(Notification, ButtonsAreVisibleOnlyInTheStateTheyWereGivenFor)
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

	TEST_F(Notification, NewNotificationsStartWithNoCompletionStateAndKeepTheOneSet)
	{
		const TSharedPtr<SNotificationItem> Item = FSlateNotificationManager::Get().AddNotification(MakeInfo(false));
		ASSERT_TRUE(Item.IsValid());
		EXPECT_EQ(Item->GetCompletionState(), SNotificationItem::CS_None);

		Item->SetCompletionState(SNotificationItem::CS_Pending);
		EXPECT_EQ(Item->GetCompletionState(), SNotificationItem::CS_Pending);
		Item->SetCompletionState(SNotificationItem::CS_Success);
		EXPECT_EQ(Item->GetCompletionState(), SNotificationItem::CS_Success);
	}

	TEST_F(Notification, NotificationsThatAreNotFireAndForgetStayUntilToldToGo)
	{
		TWeakPtr<SNotificationItem> Item = FSlateNotificationManager::Get().AddNotification(MakeInfo(false));
		EXPECT_FALSE(UE::Headless::IsFireAndForget(*Item.Pin()));

		UE::Headless::AdvanceNotificationTime(60.0f);
		EXPECT_TRUE(IsShown(Item));
	}

	TEST_F(Notification, FireAndForgetNotificationsWaitForFadeInAndExpireThenFadeOut)
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

	TEST_F(Notification, ExpireAndFadeoutCountsFromWhenItIsCalled)
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

	TEST_F(Notification, DurationsSetWhileWaitingToExpireStillCount)
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

	TEST_F(Notification, FadeoutRemovesAfterTheFadeOutDurationAlone)
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

	TEST_F(Notification, ButtonsKeepTheirCallbacks)
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
