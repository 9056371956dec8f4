#pragma once

#include "CoreMinimal.h"
#include "Widgets/Notifications/SNotificationList.h"

class SWidget;

/** Custom content of a notification. */
class INotificationWidget
{
public:
	virtual ~INotificationWidget() {}

	virtual void OnSetCompletionState(SNotificationItem::ECompletionState InState) = 0;
	virtual TSharedRef<SWidget> AsWidget() = 0;
};
