#pragma once

#include "CoreMinimal.h"
#include "Widgets/Notifications/SNotificationList.h"

/** What the notification area shows and the clock its fades run on; the manager and the instruments share it. */
struct FNotificationManagerState
{
	/** The notifications on screen, oldest first. */
	TArray<TSharedRef<SNotificationItem>> Notifications;
	/** Seconds since the session started, as far as the notifications know. */
	double Time = 0.0;

	static FNotificationManagerState& Get();
};
