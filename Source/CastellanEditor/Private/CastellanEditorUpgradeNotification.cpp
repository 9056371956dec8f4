// Copyright Nimbrel. All Rights Reserved.

#include "CastellanEditor.h"
#include "CastellanEditorStyle.h"
#include "Framework/Notifications/NotificationManager.h"
#include "HAL/PlatformProcess.h"
#include "Kismet/GameplayStatics.h"
#include "KyroSaveGame.h"
#include "PlatformFeatures.h"
#include "SaveGameSystem.h"
#include "Styling/ISlateStyle.h"
#include "Templates/Casts.h"
#include "Widgets/Notifications/SNotificationList.h"

#define LOCTEXT_NAMESPACE "FCastellanEditorModule"

void FCastellanEditorModule::LoadUpgradeSettings()
{
	// A fresh record only tells where the runtime keeps its slot.
	const UKyroSaveGame* Defaults = Cast<UKyroSaveGame>(UGameplayStatics::CreateSaveGameObject(UKyroSaveGame::StaticClass()));
	if (!Defaults)
	{
		return;
	}
	ISaveGameSystem* SaveSystem = IPlatformFeaturesModule::Get().GetSaveGameSystem();
	if (!SaveSystem || !SaveSystem->DoesSaveGameExist(*Defaults->SaveSlotName, Defaults->UserIndex))
	{
		return;
	}
	const UKyroSaveGame* Saved = Cast<UKyroSaveGame>(UGameplayStatics::LoadGameFromSlot(Defaults->SaveSlotName, Defaults->UserIndex));
	if (IsValid(Saved))
	{
		bSkipLastOfferedVersion = Saved->bSkipVersion;
		LastOfferedVersion = Saved->Version;
	}
}

void FCastellanEditorModule::SaveUpgradeSettings()
{
	UKyroSaveGame* Record = Cast<UKyroSaveGame>(UGameplayStatics::CreateSaveGameObject(UKyroSaveGame::StaticClass()));
	if (!Record)
	{
		return;
	}
	Record->bSkipVersion = bSkipLastOfferedVersion;
	Record->Version = LastOfferedVersion;
	UGameplayStatics::SaveGameToSlot(Record, Record->SaveSlotName, Record->UserIndex);
}

void FCastellanEditorModule::OnUpgradeAvailable(FString DisplayVersion, FString DownloadAddress)
{
	// A version is known by the last segment of its download address.
	int32 LastSlash = INDEX_NONE;
	const FString NewVersion = DownloadAddress.FindLastChar(TEXT('/'), LastSlash) ? DownloadAddress.RightChop(LastSlash + 1) : DownloadAddress;

	if (bSkipLastOfferedVersion && LastOfferedVersion.Equals(NewVersion, ESearchCase::CaseSensitive))
	{
		return;
	}

	// The cleared flag is stored with the previously offered version; the new one stays in memory until skipped.
	bSkipLastOfferedVersion = false;
	SaveUpgradeSettings();
	LastOfferedVersion = NewVersion;

	FNotificationInfo Info(FText::Format(LOCTEXT("NewUpdatePopupTitle", "Nimbrel Castellan Upgrade\nVersion {0} Available\n"), FText::FromString(DisplayVersion)));
	Info.Image = FCastellanEditorStyle::Get().GetBrush(TEXT("KyroCastellan.PluginNotificationIcon"));
	Info.WidthOverride = 420.0f;
	Info.bFireAndForget = false;
	Info.ButtonDetails.Add(FNotificationButtonInfo(
		LOCTEXT("NewUpdatePopupDownloadNowLater", "Download now"),
		LOCTEXT("NewUpdatePopupDownloadNowTT", "Download now"),
		FSimpleDelegate::CreateRaw(this, &FCastellanEditorModule::OnDownloadNowClicked, DownloadAddress),
		SNotificationItem::CS_Pending));
	Info.ButtonDetails.Add(FNotificationButtonInfo(
		LOCTEXT("NewUpdatePopupRemindMeLater", "Remind me later"),
		LOCTEXT("NewUpdatePopupRemindMeLaterTT", "Remind me later"),
		FSimpleDelegate::CreateRaw(this, &FCastellanEditorModule::OnRemindMeLaterClicked),
		SNotificationItem::CS_Pending));
	Info.ButtonDetails.Add(FNotificationButtonInfo(
		LOCTEXT("NewUpdatePopupSkipVersion", "Skip version"),
		LOCTEXT("NewUpdatePopupSkipVersionTT", "Skip"),
		FSimpleDelegate::CreateRaw(this, &FCastellanEditorModule::OnSkipVersionClicked),
		SNotificationItem::CS_Pending));

	UpgradeNotification = FSlateNotificationManager::Get().AddNotification(Info);
	if (const TSharedPtr<SNotificationItem> Notification = UpgradeNotification.Pin())
	{
		Notification->SetCompletionState(SNotificationItem::CS_Pending);
	}
}

void FCastellanEditorModule::OnDownloadNowClicked(FString DownloadAddress)
{
	FPlatformProcess::LaunchURL(*DownloadAddress, nullptr, nullptr);
	CloseUpgradeNotification();
}

void FCastellanEditorModule::OnRemindMeLaterClicked()
{
	CloseUpgradeNotification();
}

void FCastellanEditorModule::OnSkipVersionClicked()
{
	bSkipLastOfferedVersion = true;
	SaveUpgradeSettings();
	CloseUpgradeNotification();
}

void FCastellanEditorModule::CloseUpgradeNotification()
{
	// The notification may have gone already; the choice above still counts.
	if (const TSharedPtr<SNotificationItem> Notification = UpgradeNotification.Pin())
	{
		Notification->SetCompletionState(SNotificationItem::CS_None);
		Notification->ExpireAndFadeout();
	}
}

#undef LOCTEXT_NAMESPACE
