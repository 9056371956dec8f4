#include "Framework/Notifications/NotificationManager.h"

#include "Framework/Notifications/NotificationManagerState.h"
#include "Widgets/Notifications/SNotificationItemImpl.h"

FNotificationManagerState& FNotificationManagerState::Get()
{
	static FNotificationManagerState State;
	return State;
}

FSlateNotificationManager::FSlateNotificationManager()
	: bAllowNotifications(true)
{
}

FSlateNotificationManager& FSlateNotificationManager::Get()
{
	// The engine keeps one manager for the process; so does the headless editor.
	struct FProcessManager : FSlateNotificationManager
	{
	};
	static FProcessManager* Instance = new FProcessManager();
	return *Instance;
}

TSharedPtr<SNotificationItem> FSlateNotificationManager::AddNotification(const FNotificationInfo& Info)
{
	if (!bAllowNotifications)
	{
		return nullptr;
	}
	TSharedRef<SNotificationItemImpl> NewItem = SNew(SNotificationItemImpl, Info);
	FNotificationManagerState::Get().Notifications.Add(NewItem);
	if (Info.bFireAndForget)
	{
		NewItem->ExpireAndFadeout();
	}
	return NewItem;
}

void FSlateNotificationManager::Tick()
{
	FNotificationManagerState& State = FNotificationManagerState::Get();
	const TArray<TSharedRef<SNotificationItem>> Current = State.Notifications;
	for (const TSharedRef<SNotificationItem>& Item : Current)
	{
		if (StaticCastSharedRef<SNotificationItemImpl>(Item)->Advance(State.Time))
		{
			State.Notifications.Remove(Item);
		}
	}
}
