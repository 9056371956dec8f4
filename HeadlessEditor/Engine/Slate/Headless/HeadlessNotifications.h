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
	/**
	 * The notification area as the editor places it over a window: the notifications on screen
	 * stacked at the bottom right, oldest on top, clear of the window's edge and its status bar.
	 * Draw it at the size of the window it covers.
	 */
	SLATE_API TSharedRef<SWidget> MakeNotificationArea();
	/** Removes every notification, as closing the editor does. */
	SLATE_API void ResetNotifications();
}
