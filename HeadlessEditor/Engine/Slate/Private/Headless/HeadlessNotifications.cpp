#include "HeadlessNotifications.h"

#include "Framework/Notifications/NotificationManager.h"
#include "Framework/Notifications/NotificationManagerState.h"
#include "Widgets/Notifications/SNotificationItemImpl.h"

namespace UE::Headless
{
	const TArray<TSharedRef<SNotificationItem>>& GetNotifications()
	{
		return FNotificationManagerState::Get().Notifications;
	}

	void AdvanceNotificationTime(float DeltaSeconds)
	{
		FNotificationManagerState::Get().Time += DeltaSeconds;
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
		FNotificationManagerState::Get().Notifications.Reset();
	}
}
