#pragma once

#include "CoreMinimal.h"
#include "Widgets/Notifications/SNotificationList.h"

/** Shows notifications in the editor's notification area. */
class SLATE_API FSlateNotificationManager
{
public:
	static FSlateNotificationManager& Get();

	/** Lets time pass for the notifications: fades advance and finished ones go away. */
	void Tick();

	/** Shows a new notification. @return the notification, or null if it could not be shown. */
	TSharedPtr<SNotificationItem> AddNotification(const FNotificationInfo& Info);

	void SetAllowNotifications(const bool bShouldAllow) { this->bAllowNotifications = bShouldAllow; }
	bool AreNotificationsAllowed() const { return this->bAllowNotifications; }

protected:
	FSlateNotificationManager();

private:
	bool bAllowNotifications;
};
