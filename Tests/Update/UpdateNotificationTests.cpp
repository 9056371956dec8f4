#include "AuthDelegates.h"
#include "Framework/Notifications/NotificationManager.h"
#include "HeadlessDesktop.h"
#include "HeadlessNotifications.h"
#include "HeadlessSaveGames.h"
#include "HeadlessEditorSession.h"
#include "Kismet/GameplayStatics.h"
#include "KyroSaveGame.h"
#include "Styling/ISlateStyle.h"
#include "Styling/SlateStyleRegistry.h"
#include "Templates/Casts.h"
#include "WidgetDriver.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/SToolTip.h"
#include "Widgets/Text/STextBlock.h"

#include <gtest/gtest.h>

namespace
{
	const TCHAR* SlotName = TEXT("KyroCastellanSettings");

	const TArray<TSharedRef<SNotificationItem>>& GetNotifications()
	{
		return UE::Headless::GetNotifications();
	}

	void Announce(const TCHAR* DisplayVersion, const TCHAR* Address)
	{
		AuthDelegates::OnUpgradeAvailable.Broadcast(FString(DisplayVersion), FString(Address));
	}

	/** Presses a notification's button as a user would: it must be on screen. */
	void Press(const TSharedRef<SNotificationItem>& Item, const TCHAR* Label)
	{
		const TSharedPtr<SButton> Button = FWidgetDriver::Find<SButton>(Item, TEXT("SButton"), FString(Label));
		ASSERT_TRUE(Button.IsValid()) << Label;
		ASSERT_TRUE(FWidgetDriver::Click(Button.ToSharedRef())) << Label;
	}

	/** Lets the notification's fade run out. */
	void LetNotificationsGo()
	{
		UE::Headless::AdvanceNotificationTime(10.0f);
	}

	/** Every test starts without a saved record, as a fresh install does. */
	class UpdateNotification : public ::testing::Test
	{
	protected:
		virtual void SetUp() override { UE::Headless::ClearSaveGames(); }
		virtual void TearDown() override { UE::Headless::ClearSaveGames(); }
	};
}

TEST_F(UpdateNotification, AnnouncementShowsAPendingNotificationWithThreeButtons)
{
	FHeadlessEditorSession Session;
	Announce(TEXT("1.4"), TEXT("https://www.example.com/download/1.4"));

	ASSERT_EQ(GetNotifications().Num(), 1);
	const TSharedRef<SNotificationItem> Item = GetNotifications()[0];
	EXPECT_EQ(Item->GetCompletionState(), SNotificationItem::CS_Pending);
	EXPECT_FALSE(UE::Headless::IsFireAndForget(*Item));
	EXPECT_EQ(UE::Headless::GetWidthOverride(*Item), 420.0f);
	EXPECT_EQ(UE::Headless::GetNotificationImage(*Item), FSlateStyleRegistry::FindSlateStyle(TEXT("CastellanEditorStyle"))->GetBrush(TEXT("KyroCastellan.PluginNotificationIcon")));
	EXPECT_TRUE(FWidgetDriver::FindWidget(Item, TEXT("STextBlock"), FString(TEXT("Nimbrel Castellan Upgrade\nVersion 1.4 Available\n"))).IsValid());

	TArray<FString> Shown;
	for (const TSharedRef<SWidget>& Button : FWidgetDriver::FindAllWidgets(Item, TEXT("SButton")))
	{
		EXPECT_TRUE(FWidgetDriver::IsShown(Button));
		const TSharedPtr<SToolTip> ToolTip = StaticCastSharedPtr<SToolTip>(Button->GetToolTip());
		Shown.Add(FWidgetDriver::GetDisplayedText(Button).Get(TEXT("")) + TEXT(" / ") + (ToolTip ? ToolTip->GetTextTooltip().ToString() : FString()));
	}
	EXPECT_EQ(Shown, (TArray<FString>{TEXT("Download now / Download now"), TEXT("Remind me later / Remind me later"), TEXT("Skip version / Skip")}));

	// Once the notification is no longer pending its buttons go.
	Item->SetCompletionState(SNotificationItem::CS_None);
	EXPECT_FALSE(FWidgetDriver::IsShown(FWidgetDriver::FindWidget(Item, TEXT("SButton")).ToSharedRef()));
}

TEST_F(UpdateNotification, TheButtonsTextsKeepTheirLocalisationKeys)
{
	FHeadlessEditorSession Session;
	Announce(TEXT("1.4"), TEXT("https://www.example.com/download/1.4"));
	ASSERT_EQ(GetNotifications().Num(), 1);

	TArray<FString> Keys;
	for (const TSharedRef<SWidget>& Button : FWidgetDriver::FindAllWidgets(GetNotifications()[0], TEXT("SButton")))
	{
		const TSharedPtr<STextBlock> Label = FWidgetDriver::Find<STextBlock>(Button, TEXT("STextBlock"));
		const TSharedPtr<SToolTip> ToolTip = StaticCastSharedPtr<SToolTip>(Button->GetToolTip());
		ASSERT_TRUE(Label.IsValid());
		ASSERT_TRUE(ToolTip.IsValid());
		for (const FText& Text : {Label->GetText(), ToolTip->GetTextTooltip()})
		{
			Keys.Add(FTextInspector::GetNamespace(Text).Get(FString()) + TEXT(":") + FTextInspector::GetKey(Text).Get(FString()));
		}
	}
	EXPECT_EQ(Keys, (TArray<FString>{
						TEXT("FCastellanEditorModule:NewUpdatePopupDownloadNowLater"),
						TEXT("FCastellanEditorModule:NewUpdatePopupDownloadNowTT"),
						TEXT("FCastellanEditorModule:NewUpdatePopupRemindMeLater"),
						TEXT("FCastellanEditorModule:NewUpdatePopupRemindMeLaterTT"),
						TEXT("FCastellanEditorModule:NewUpdatePopupSkipVersion"),
						TEXT("FCastellanEditorModule:NewUpdatePopupSkipVersionTT"),
					}));
}

TEST_F(UpdateNotification, DownloadNowOpensTheAddressAndCloses)
{
	FHeadlessEditorSession Session;
	UE::Headless::ResetDesktop();
	Announce(TEXT("1.4"), TEXT("https://www.example.com/download/1.4"));
	const TSharedRef<SNotificationItem> Item = GetNotifications()[0];

	Press(Item, TEXT("Download now"));

	ASSERT_EQ(UE::Headless::GetLaunchedURLs().Num(), 1);
	EXPECT_TRUE(UE::Headless::GetLaunchedURLs()[0].Equals(TEXT("https://www.example.com/download/1.4")));
	EXPECT_EQ(Item->GetCompletionState(), SNotificationItem::CS_None);
	LetNotificationsGo();
	EXPECT_TRUE(GetNotifications().IsEmpty());
	// Only the offer itself saved: the cleared flag with the version offered before, none yet.
	const UKyroSaveGame* Saved = Cast<UKyroSaveGame>(UGameplayStatics::LoadGameFromSlot(SlotName, 0));
	ASSERT_NE(Saved, nullptr);
	EXPECT_FALSE(Saved->bSkipVersion);
	EXPECT_TRUE(Saved->Version.IsEmpty());
}

TEST_F(UpdateNotification, SkippedVersionIsNotOfferedAgainButANewOneIs)
{
	FHeadlessEditorSession Session;
	Announce(TEXT("1.4"), TEXT("https://www.example.com/download/1.4"));
	Press(GetNotifications()[0], TEXT("Skip version"));
	LetNotificationsGo();

	Announce(TEXT("1.4"), TEXT("https://www.example.com/download/1.4"));
	EXPECT_TRUE(GetNotifications().IsEmpty());

	Announce(TEXT("1.5"), TEXT("https://www.example.com/download/1.5"));
	ASSERT_EQ(GetNotifications().Num(), 1);
	// The cleared skip was stored with the version offered before.
	const UKyroSaveGame* Saved = Cast<UKyroSaveGame>(UGameplayStatics::LoadGameFromSlot(SlotName, 0));
	ASSERT_NE(Saved, nullptr);
	EXPECT_FALSE(Saved->bSkipVersion);
	EXPECT_TRUE(Saved->Version.Equals(TEXT("1.4")));

	// 1.5 was not skipped, so 1.4 is offered again too.
	Press(GetNotifications()[0], TEXT("Remind me later"));
	LetNotificationsGo();
	Announce(TEXT("1.4"), TEXT("https://www.example.com/download/1.4"));
	EXPECT_EQ(GetNotifications().Num(), 1);
}

TEST_F(UpdateNotification, SkipComparisonIsCaseSensitive)
{
	FHeadlessEditorSession Session;
	Announce(TEXT("Beta"), TEXT("https://www.example.com/download/beta"));
	Press(GetNotifications()[0], TEXT("Skip version"));
	LetNotificationsGo();

	Announce(TEXT("Beta"), TEXT("https://www.example.com/download/BETA"));
	EXPECT_EQ(GetNotifications().Num(), 1);
}

TEST_F(UpdateNotification, AddressWithoutSlashIsTheVersionItself)
{
	FHeadlessEditorSession Session;
	Announce(TEXT("2.0"), TEXT("release-2.0.zip"));
	Press(GetNotifications()[0], TEXT("Skip version"));

	const UKyroSaveGame* Saved = Cast<UKyroSaveGame>(UGameplayStatics::LoadGameFromSlot(SlotName, 0));
	ASSERT_NE(Saved, nullptr);
	EXPECT_TRUE(Saved->bSkipVersion);
	EXPECT_TRUE(Saved->Version.Equals(TEXT("release-2.0.zip")));

	LetNotificationsGo();
	Announce(TEXT("2.0"), TEXT("https://www.example.com/release-2.0.zip"));
	EXPECT_TRUE(GetNotifications().IsEmpty());
}

TEST_F(UpdateNotification, RemindMeLaterOffersTheSameVersionAgain)
{
	FHeadlessEditorSession Session;
	Announce(TEXT("1.4"), TEXT("https://www.example.com/download/1.4"));
	Press(GetNotifications()[0], TEXT("Remind me later"));
	LetNotificationsGo();
	ASSERT_TRUE(GetNotifications().IsEmpty());

	Announce(TEXT("1.4"), TEXT("https://www.example.com/download/1.4"));
	EXPECT_EQ(GetNotifications().Num(), 1);
}

TEST_F(UpdateNotification, SkipSurvivesAnEditorRestart)
{
	{
		FHeadlessEditorSession Session;
		Announce(TEXT("1.4"), TEXT("https://www.example.com/download/1.4"));
		Press(GetNotifications()[0], TEXT("Skip version"));
	}
	{
		FHeadlessEditorSession Session;
		Announce(TEXT("1.4"), TEXT("https://www.example.com/download/1.4"));
		EXPECT_TRUE(GetNotifications().IsEmpty());
		Announce(TEXT("1.5"), TEXT("https://www.example.com/download/1.5"));
		EXPECT_EQ(GetNotifications().Num(), 1);
	}
}

TEST_F(UpdateNotification, WithoutASaveSystemNothingIsSkippedAndNothingBreaks)
{
	UE::Headless::SetSaveGameSystemAvailable(false);
	{
		FHeadlessEditorSession Session;
		Announce(TEXT("1.4"), TEXT("https://www.example.com/download/1.4"));
		Press(GetNotifications()[0], TEXT("Skip version"));
		LetNotificationsGo();
		// The skip holds for this run, in memory.
		Announce(TEXT("1.4"), TEXT("https://www.example.com/download/1.4"));
		EXPECT_TRUE(GetNotifications().IsEmpty());
	}
	{
		FHeadlessEditorSession Session;
		Announce(TEXT("1.4"), TEXT("https://www.example.com/download/1.4"));
		EXPECT_EQ(GetNotifications().Num(), 1);
	}
	UE::Headless::SetSaveGameSystemAvailable(true);
}

TEST_F(UpdateNotification, ButtonPressedAfterTheNotificationHasGoneStillRecordsTheSkip)
{
	FHeadlessEditorSession Session;
	Announce(TEXT("1.4"), TEXT("https://www.example.com/download/1.4"));
	FSimpleDelegate SkipCallback;
	{
		const TSharedRef<SNotificationItem> Item = GetNotifications()[0];
		const FNotificationButtonInfo* Button = UE::Headless::FindNotificationButton(*Item, TEXT("Skip version"));
		ASSERT_NE(Button, nullptr);
		SkipCallback = Button->Callback;
		Item->Fadeout();
	}
	LetNotificationsGo();
	ASSERT_TRUE(GetNotifications().IsEmpty());

	SkipCallback.Execute();

	const UKyroSaveGame* Saved = Cast<UKyroSaveGame>(UGameplayStatics::LoadGameFromSlot(SlotName, 0));
	ASSERT_NE(Saved, nullptr);
	EXPECT_TRUE(Saved->bSkipVersion);
	EXPECT_TRUE(Saved->Version.Equals(TEXT("1.4")));
	Announce(TEXT("1.4"), TEXT("https://www.example.com/download/1.4"));
	EXPECT_TRUE(GetNotifications().IsEmpty());
}

TEST_F(UpdateNotification, ShutdownUnsubscribesFromTheRuntime)
{
	FHeadlessEditorSession Session;
	Session.ShutdownEditorModule();

	EXPECT_FALSE(AuthDelegates::OnUpgradeAvailable.IsBound());
}
