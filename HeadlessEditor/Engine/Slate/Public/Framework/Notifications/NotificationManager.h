#pragma once

#include "CoreMinimal.h"
#include "Widgets/Notifications/SNotificationList.h"

/** Shows notifications in the editor's notification area. */
class SLATE_API FSlateNotificationManager
{
public:
	static FSlateNotificationManager& Get();

	/** Shows a new notification. @return the notification, or null if it could not be shown. */
	TSharedPtr<SNotificationItem> AddNotification(const FNotificationInfo& Info);

	/** Lets time pass for the notifications: fades advance and finished ones go away. */
	void Tick();

	/** Headless editor: the notifications on screen, oldest first. */
	const TArray<TSharedRef<SNotificationItem>>& GetNotifications() const { return Notifications; }
	/** Headless editor: removes every notification, as closing the editor does. */
	void ResetForHeadlessSession() { Notifications.Reset(); }

private:
	friend class SNotificationItemImpl;

	void RemoveNotification(const TSharedRef<SNotificationItem>& Item);

	TArray<TSharedRef<SNotificationItem>> Notifications;
};
