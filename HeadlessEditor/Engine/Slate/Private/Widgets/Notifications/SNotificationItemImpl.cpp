#include "SNotificationItemImpl.h"

#include "Framework/Notifications/NotificationManagerState.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Text/STextBlock.h"

void SNotificationItemImpl::Construct(const FArguments& InArgs, const FNotificationInfo& InInfo)
{
	Text = InInfo.Text;
	SubText = InInfo.SubText;
	Hyperlink = InInfo.Hyperlink;
	HyperlinkText = InInfo.HyperlinkText;
	Buttons = InInfo.ButtonDetails;
	Image = InInfo.Image;
	WidthOverride = InInfo.WidthOverride.Get();
	FadeInDuration = InInfo.FadeInDuration;
	FadeOutDuration = InInfo.FadeOutDuration;
	ExpireDuration = InInfo.ExpireDuration;
	bFireAndForget = InInfo.bFireAndForget;

	TSharedRef<SHorizontalBox> ButtonRow = SNew(SHorizontalBox);
	for (int32 Index = 0; Index < Buttons.Num(); ++Index)
	{
		const FSimpleDelegate Callback = Buttons[Index].Callback;
		ButtonRow->AddSlot()
			.AutoWidth()
				[SNew(SButton)
						.Text(Buttons[Index].Text)
						.ToolTipText(Buttons[Index].ToolTip)
						.Visibility(TAttribute<EVisibility>::CreateSP(this, &SNotificationItemImpl::GetButtonVisibility, Index))
						.OnClicked_Lambda([Callback]()
							{
								Callback.ExecuteIfBound();
								return FReply::Handled(); })];
	}

	ChildSlot
		[SNew(SHorizontalBox) + SHorizontalBox::Slot().AutoWidth()[SNew(SImage).Image(Image)] + SHorizontalBox::Slot()[SNew(SVerticalBox) + SVerticalBox::Slot().AutoHeight()[SNew(STextBlock).Text(this, &SNotificationItemImpl::GetText)] + SVerticalBox::Slot().AutoHeight()[SNew(STextBlock).Text(this, &SNotificationItemImpl::GetSubText)] + SVerticalBox::Slot().AutoHeight()[ButtonRow]]];
}

void SNotificationItemImpl::SetHyperlink(const FSimpleDelegate& InHyperlink, const TAttribute<FText>& InHyperlinkText)
{
	Hyperlink = InHyperlink;
	HyperlinkText = InHyperlinkText;
}

void SNotificationItemImpl::ExpireAndFadeout()
{
	if (Phase == EPhase::Shown)
	{
		Phase = EPhase::Expiring;
		ExpireStartTime = FNotificationManagerState::Get().Time;
	}
}

void SNotificationItemImpl::Fadeout()
{
	if (Phase == EPhase::Shown || Phase == EPhase::Expiring)
	{
		Phase = EPhase::FadingOut;
		PhaseEndTime = FNotificationManagerState::Get().Time + FadeOutDuration;
	}
}

bool SNotificationItemImpl::Advance(double Now)
{
	// The wait spans the fade-in as well as the expire duration, both read as they are now, as the engine's tick does.
	const double ExpireEndTime = ExpireStartTime + FadeInDuration + ExpireDuration;
	if (Phase == EPhase::Expiring && Now >= ExpireEndTime)
	{
		Phase = EPhase::FadingOut;
		PhaseEndTime = ExpireEndTime + FadeOutDuration;
	}
	if (Phase == EPhase::FadingOut && Now >= PhaseEndTime)
	{
		Phase = EPhase::Gone;
	}
	return Phase == EPhase::Gone;
}

EVisibility SNotificationItemImpl::GetButtonVisibility(int32 ButtonIndex) const
{
	const FNotificationButtonInfo& Button = Buttons[ButtonIndex];
	switch (CompletionState)
	{
		case CS_Pending:
			return Button.VisibilityOnPending;
		case CS_Success:
			return Button.VisibilityOnSuccess;
		case CS_Fail:
			return Button.VisibilityOnFail;
		default:
			return Button.VisibilityOnNone;
	}
}
