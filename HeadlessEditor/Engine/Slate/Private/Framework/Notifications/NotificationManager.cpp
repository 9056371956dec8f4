#include "Framework/Notifications/NotificationManager.h"

#include "Headless/HeadlessNotifications.h"
#include "Widgets/Notifications/SNotificationItemImpl.h"

namespace
{
	double GNotificationTime = 0.0;
}

namespace UE::Headless
{
	double GetNotificationTime()
	{
		return GNotificationTime;
	}

	void AdvanceNotificationTime(float DeltaSeconds)
	{
		GNotificationTime += DeltaSeconds;
		FSlateNotificationManager::Get().Tick();
	}

	const FNotificationButtonInfo* FindNotificationButton(const SNotificationItem& Item, const FString& Text)
	{
		for (const FNotificationButtonInfo& Button : static_cast<const SNotificationItemImpl&>(Item).GetButtons())
		{
			if (Button.Text.ToString().Equals(Text))
			{
				return &Button;
			}
		}
		return nullptr;
	}

	bool IsFireAndForget(const SNotificationItem& Item)
	{
		return static_cast<const SNotificationItemImpl&>(Item).IsFireAndForget();
	}

	float GetWidthOverride(const SNotificationItem& Item)
	{
		return static_cast<const SNotificationItemImpl&>(Item).GetWidthOverride();
	}

	const FSlateBrush* GetNotificationImage(const SNotificationItem& Item)
	{
		return static_cast<const SNotificationItemImpl&>(Item).GetImage();
	}

	void ResetNotifications()
	{
		FSlateNotificationManager::Get().ResetForHeadlessSession();
	}
}

FSlateNotificationManager& FSlateNotificationManager::Get()
{
	static FSlateNotificationManager* Instance = new FSlateNotificationManager();
	return *Instance;
}

TSharedPtr<SNotificationItem> FSlateNotificationManager::AddNotification(const FNotificationInfo& Info)
{
	TSharedRef<SNotificationItemImpl> NewItem = SNew(SNotificationItemImpl, Info);
	Notifications.Add(NewItem);
	if (Info.bFireAndForget)
	{
		NewItem->ExpireAndFadeout();
	}
	return NewItem;
}

void FSlateNotificationManager::Tick()
{
	const TArray<TSharedRef<SNotificationItem>> Current = Notifications;
	for (const TSharedRef<SNotificationItem>& Item : Current)
	{
		if (StaticCastSharedRef<SNotificationItemImpl>(Item)->Advance(GNotificationTime))
		{
			RemoveNotification(Item);
		}
	}
}

void FSlateNotificationManager::RemoveNotification(const TSharedRef<SNotificationItem>& Item)
{
	Notifications.Remove(Item);
}
