#include "SNotificationItemImpl.h"

#include "Framework/Notifications/NotificationManagerState.h"
#include "Styling/AppStyle.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SHyperlink.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/Notifications/SNotificationBackground.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SOverlay.h"
#include "Widgets/Text/STextBlock.h"

void SNotificationItemImpl::Construct(const FArguments& InArgs, const FNotificationInfo& InInfo)
{
	Text = InInfo.Text;
	SubText = InInfo.SubText;
	Hyperlink = InInfo.Hyperlink;
	HyperlinkText = InInfo.HyperlinkText;
	Buttons = InInfo.ButtonDetails;
	// A notification without an image of its own shows the editor's mark.
	Image = InInfo.Image ? InInfo.Image : FAppStyle::Get().GetBrush("UnrealCircle.Thick");
	WidthOverride = InInfo.WidthOverride;
	FadeInDuration = InInfo.FadeInDuration;
	FadeOutDuration = InInfo.FadeOutDuration;
	ExpireDuration = InInfo.ExpireDuration;
	bFireAndForget = InInfo.bFireAndForget;

	ChildSlot
		[SNew(SNotificationBackground)
				.Padding(FMargin(16.0f, 8.0f))
					[SNew(SBox)
							.WidthOverride(WidthOverride)
								[SNew(SHorizontalBox) + SHorizontalBox::Slot().AutoWidth().Padding(TAttribute<FMargin>(this, &SNotificationItemImpl::GetIconPadding)).VAlign(VAlign_Top).HAlign(HAlign_Left)[MakeIcon(InInfo)] + SHorizontalBox::Slot().Padding(10.0f, 0.0f, 0.0f, 0.0f)[MakeInteractiveWidgets()]]]];
}

TSharedRef<SWidget> SNotificationItemImpl::MakeIcon(const FNotificationInfo& InInfo)
{
	// The spinner turns around the icon while the task is pending.
	return SNew(SOverlay) + SOverlay::Slot().VAlign(VAlign_Center).HAlign(HAlign_Center)[SNew(SImage).Image(FAppStyle::Get().GetBrush("NotificationList.Throbber")).Visibility(InInfo.bUseThrobber ? TAttribute<EVisibility>(this, &SNotificationItemImpl::GetThrobberVisibility) : TAttribute<EVisibility>(EVisibility::Collapsed))] + SOverlay::Slot().VAlign(VAlign_Center).HAlign(HAlign_Center)[SNew(SImage).Image(InInfo.bUseSuccessFailIcons ? TAttribute<const FSlateBrush*>(this, &SNotificationItemImpl::GetNotificationIcon) : TAttribute<const FSlateBrush*>(Image)).DesiredSizeOverride(FVector2D(32.0, 32.0))];
}

TSharedRef<SWidget> SNotificationItemImpl::MakeInteractiveWidgets()
{
	// Long texts wrap short of the card's edge.
	const float WrapTextAt = WidthOverride.IsSet() ? WidthOverride.Get() - 50.0f : 0.0f;
	TSharedRef<SHorizontalBox> ButtonsBox = SNew(SHorizontalBox);
	for (int32 Index = 0; Index < Buttons.Num(); ++Index)
	{
		const FSimpleDelegate Callback = Buttons[Index].Callback;
		ButtonsBox->AddSlot()
			.AutoWidth()
			.VAlign(VAlign_Center)
			.Padding(0.0f, 0.0f, 4.0f, 0.0f)
				[SNew(SButton)
						.Text(Buttons[Index].Text)
						.ToolTipText(Buttons[Index].ToolTip)
						.Visibility(TAttribute<EVisibility>::CreateSP(this, &SNotificationItemImpl::GetButtonVisibility, Index))
						.OnClicked_Lambda([Callback]()
							{
								Callback.ExecuteIfBound();
								return FReply::Handled(); })];
	}

	return SNew(SVerticalBox) + SVerticalBox::Slot()[SNew(STextBlock).Text(this, &SNotificationItemImpl::GetText).Font(FAppStyle::Get().GetFontStyle(TEXT("NotificationList.FontBold"))).WrapTextAt(WrapTextAt)] + SVerticalBox::Slot().Padding(FMargin(0.0f, 10.0f, 0.0f, 2.0f)).AutoHeight()[SNew(STextBlock).Text(this, &SNotificationItemImpl::GetSubText).Visibility(this, &SNotificationItemImpl::GetSubTextVisibility).WrapTextAt(WrapTextAt)] + SVerticalBox::Slot().AutoHeight().Padding(FMargin(0.0f, 10.0f, 0.0f, 2.0f)).VAlign(VAlign_Center).HAlign(HAlign_Left)[SNew(SHyperlink).Visibility(this, &SNotificationItemImpl::GetHyperlinkVisibility).Text(this, &SNotificationItemImpl::GetHyperlinkText).OnNavigate(this, &SNotificationItemImpl::OnHyperlinkClicked)] + SVerticalBox::Slot().AutoHeight().Padding(0.0f, 5.0f, 0.0f, 0.0f).VAlign(VAlign_Center).HAlign(HAlign_Right)[ButtonsBox];
}

FMargin SNotificationItemImpl::GetIconPadding() const
{
	// The spinner is wider than the icon; the icon moves left to keep the text where it was.
	return GetThrobberVisibility().IsVisible() ? FMargin(-6.0f, 0.0f, 0.0f, 0.0f) : FMargin(0.0f);
}

EVisibility SNotificationItemImpl::GetThrobberVisibility() const
{
	return CompletionState == CS_Pending ? EVisibility::Visible : EVisibility::Collapsed;
}

const FSlateBrush* SNotificationItemImpl::GetNotificationIcon() const
{
	switch (CompletionState)
	{
		case CS_Success:
			return FAppStyle::Get().GetBrush("Icons.SuccessWithColor.Large");
		case CS_Fail:
			return FAppStyle::Get().GetBrush("Icons.ErrorWithColor.Large");
		default:
			return Image;
	}
}

EVisibility SNotificationItemImpl::GetSubTextVisibility() const
{
	return GetSubText().IsEmpty() ? EVisibility::Collapsed : EVisibility::SelfHitTestInvisible;
}

EVisibility SNotificationItemImpl::GetHyperlinkVisibility() const
{
	return Hyperlink.IsBound() ? EVisibility::Visible : EVisibility::Collapsed;
}

void SNotificationItemImpl::OnHyperlinkClicked() const
{
	Hyperlink.ExecuteIfBound();
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
