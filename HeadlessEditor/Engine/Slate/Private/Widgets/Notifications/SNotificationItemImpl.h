#pragma once

#include "CoreMinimal.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/Notifications/SNotificationList.h"

/**
 * The notification widget the manager shows: a rounded card with the image (and a spinner while
 * pending), the text, sub-text, hyperlink and buttons. Time is the notification manager's clock;
 * fades take no drawing here, only their duration, so a card is drawn as it is once faded in.
 */
class SNotificationItemImpl : public SNotificationItem
{
public:
	SLATE_BEGIN_ARGS(SNotificationItemImpl)
	{
	}
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs, const FNotificationInfo& InInfo);

	virtual void SetText(const TAttribute<FText>& InText) override { Text = InText; }
	virtual void SetSubText(const TAttribute<FText>& InSubText) override { SubText = InSubText; }
	virtual void SetHyperlink(const FSimpleDelegate& InHyperlink, const TAttribute<FText>& InHyperlinkText) override;
	virtual void SetExpireDuration(float InExpireDuration) override { ExpireDuration = InExpireDuration; }
	virtual void SetFadeInDuration(float InFadeInDuration) override { FadeInDuration = InFadeInDuration; }
	virtual void SetFadeOutDuration(float InFadeOutDuration) override { FadeOutDuration = InFadeOutDuration; }
	virtual ECompletionState GetCompletionState() const override { return CompletionState; }
	virtual void SetCompletionState(ECompletionState State) override { CompletionState = State; }
	virtual void ExpireAndFadeout() override;
	virtual void Fadeout() override;
	virtual void Pulse(const FLinearColor& GlowColor) override {}

	/** Advances the fades to the manager's time. @return whether the notification has gone. */
	bool Advance(double Now);

	const TArray<FNotificationButtonInfo>& GetButtons() const { return Buttons; }
	bool IsFireAndForget() const { return bFireAndForget; }
	float GetWidthOverride() const { return WidthOverride.Get(); }
	const FSlateBrush* GetImage() const { return Image; }

private:
	enum class EPhase : uint8
	{
		Shown,
		Expiring,
		FadingOut,
		Gone,
	};

	TSharedRef<SWidget> MakeIcon(const FNotificationInfo& InInfo);
	TSharedRef<SWidget> MakeInteractiveWidgets();
	FMargin GetIconPadding() const;
	EVisibility GetThrobberVisibility() const;
	const FSlateBrush* GetNotificationIcon() const;
	EVisibility GetSubTextVisibility() const;
	EVisibility GetHyperlinkVisibility() const;
	FText GetHyperlinkText() const { return HyperlinkText.Get(FText::GetEmpty()); }
	void OnHyperlinkClicked() const;
	FText GetText() const { return Text.Get(FText::GetEmpty()); }
	FText GetSubText() const { return SubText.Get(FText::GetEmpty()); }
	EVisibility GetButtonVisibility(int32 ButtonIndex) const;

	TAttribute<FText> Text;
	TAttribute<FText> SubText;
	FSimpleDelegate Hyperlink;
	TAttribute<FText> HyperlinkText;
	TArray<FNotificationButtonInfo> Buttons;
	const FSlateBrush* Image = nullptr;
	FOptionalSize WidthOverride;
	float FadeInDuration = 0.0f;
	float FadeOutDuration = 0.0f;
	float ExpireDuration = 0.0f;
	bool bFireAndForget = true;
	ECompletionState CompletionState = CS_None;
	EPhase Phase = EPhase::Shown;
	double ExpireStartTime = 0.0;
	double PhaseEndTime = 0.0;
};
