#pragma once

#include "CoreMinimal.h"
#include "Layout/Visibility.h"
#include "Misc/Attribute.h"
#include "Styling/SlateTypes.h"
#include "Types/SlateStructs.h"
#include "Widgets/SCompoundWidget.h"

class INotificationWidget;
class SWindow;
struct FSlateBrush;

/** A notification shown in the editor's notification area. */
class SLATE_API SNotificationItem : public SCompoundWidget
{
public:
	/** The state of the task a notification reports on. */
	enum ECompletionState
	{
		CS_None,
		CS_Pending,
		CS_Success,
		CS_Fail,
	};

	virtual void SetText(const TAttribute<FText>& InText) = 0;
	virtual void SetSubText(const TAttribute<FText>& InSubText) = 0;
	virtual void SetHyperlink(const FSimpleDelegate& InHyperlink, const TAttribute<FText>& InHyperlinkText = TAttribute<FText>()) = 0;
	virtual void SetExpireDuration(float ExpireDuration) = 0;
	virtual void SetFadeInDuration(float FadeInDuration) = 0;
	virtual void SetFadeOutDuration(float FadeOutDuration) = 0;
	virtual ECompletionState GetCompletionState() const = 0;
	virtual void SetCompletionState(ECompletionState State) = 0;
	/** Waits for the expire duration, then fades out and goes away. */
	virtual void ExpireAndFadeout() = 0;
	/** Fades out at once and goes away. */
	virtual void Fadeout() = 0;
	virtual void Pulse(const FLinearColor& GlowColor) = 0;
};

/** A button of a notification, shown only in the completion states it is visible in. */
struct FNotificationButtonInfo
{
	FNotificationButtonInfo(const FText& InText, const FText& InToolTip, FSimpleDelegate InCallback, SNotificationItem::ECompletionState VisibleInState = SNotificationItem::CS_Pending)
		: Text(InText)
		, ToolTip(InToolTip)
		, Callback(InCallback)
	{
		VisibilityOnNone = VisibleInState == SNotificationItem::CS_None ? EVisibility::Visible : EVisibility::Collapsed;
		VisibilityOnPending = VisibleInState == SNotificationItem::CS_Pending ? EVisibility::Visible : EVisibility::Collapsed;
		VisibilityOnSuccess = VisibleInState == SNotificationItem::CS_Success ? EVisibility::Visible : EVisibility::Collapsed;
		VisibilityOnFail = VisibleInState == SNotificationItem::CS_Fail ? EVisibility::Visible : EVisibility::Collapsed;
	}

	FText Text;
	FText ToolTip;
	FSimpleDelegate Callback;
	EVisibility VisibilityOnNone;
	EVisibility VisibilityOnPending;
	EVisibility VisibilityOnSuccess;
	EVisibility VisibilityOnFail;
};

/** What a new notification shows and how it behaves. */
struct FNotificationInfo
{
	FNotificationInfo(const FText& InText)
		: Text(InText)
	{
	}

	FNotificationInfo(TSharedPtr<INotificationWidget> InContentWidget)
		: ContentWidget(InContentWidget)
	{
	}

	TSharedPtr<INotificationWidget> ContentWidget;
	TAttribute<FText> Text;
	TAttribute<FText> SubText;
	TArray<FNotificationButtonInfo> ButtonDetails;
	const FSlateBrush* Image = nullptr;
	float FadeInDuration = 0.5f;
	float FadeOutDuration = 2.0f;
	float ExpireDuration = 1.0f;
	bool bUseThrobber = true;
	bool bUseSuccessFailIcons = true;
	bool bUseLargeFont = true;
	FOptionalSize WidthOverride = 320.0f;
	/** Whether the notification goes away by itself after its expire duration. */
	bool bFireAndForget = true;
	TAttribute<ECheckBoxState> CheckBoxState;
	TAttribute<FText> CheckBoxText;
	FSimpleDelegate Hyperlink;
	TAttribute<FText> HyperlinkText;
	TSharedPtr<SWindow> ForWindow;
	bool bAllowThrottleWhenFrameRateIsLow = true;
};
