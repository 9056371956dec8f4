#pragma once

#include "CoreMinimal.h"
#include "Widgets/Notifications/SNotificationList.h"

/** Headless editor only: time and inspection for the notification area. */
namespace UE::Headless
{
	/** The notifications on screen, oldest first. */
	SLATE_API const TArray<TSharedRef<SNotificationItem>>& GetNotifications();
	/** Lets time pass: expiring notifications fade out, finished ones leave the manager. */
	SLATE_API void AdvanceNotificationTime(float DeltaSeconds);
	/** The button of a notification with that label, as it was given to the manager; null if none. */
	SLATE_API const FNotificationButtonInfo* FindNotificationButton(const SNotificationItem& Item, const FString& Text);
	SLATE_API bool IsFireAndForget(const SNotificationItem& Item);
	SLATE_API float GetWidthOverride(const SNotificationItem& Item);
	SLATE_API const FSlateBrush* GetNotificationImage(const SNotificationItem& Item);
	/** Removes every notification, as closing the editor does. */
	SLATE_API void ResetNotifications();
}
