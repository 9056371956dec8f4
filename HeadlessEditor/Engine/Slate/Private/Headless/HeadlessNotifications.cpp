#include "HeadlessNotifications.h"

#include "Framework/Notifications/NotificationManager.h"
#include "Framework/Notifications/NotificationManagerState.h"
#include "Styling/AppStyle.h"
#include "Styling/StyleDefaults.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/SBoxPanel.h"
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

	TSharedRef<SWidget> MakeNotificationArea()
	{
		// As the manager stacks the notification windows: up from the work area's bottom right corner,
		// 15 from its right edge and 20 above the status bar, 20 apart.
		const FVector2D NotificationOffset(15.0, 20.0);
		const float StatusBarHeight = FAppStyle::Get().GetFloat("StatusBar.Height", nullptr, 0.0f);
		TSharedRef<SVerticalBox> Stack = SNew(SVerticalBox);
		const TArray<TSharedRef<SNotificationItem>>& Notifications = GetNotifications();
		for (int32 Index = 0; Index < Notifications.Num(); ++Index)
		{
			Stack->AddSlot().AutoHeight().HAlign(HAlign_Right).Padding(0.0f, Index == 0 ? 0.0f : static_cast<float>(NotificationOffset.Y), 0.0f, 0.0f)[Notifications[Index]];
		}
		return SNew(SBorder)
			.BorderImage(FStyleDefaults::GetNoBrush())
			.HAlign(HAlign_Right)
			.VAlign(VAlign_Bottom)
			.Padding(FMargin(0.0f, 0.0f, static_cast<float>(NotificationOffset.X), static_cast<float>(NotificationOffset.Y) + StatusBarHeight))[Stack];
	}

	void ResetNotifications()
	{
		FNotificationManagerState::Get().Notifications.Reset();
	}
}
