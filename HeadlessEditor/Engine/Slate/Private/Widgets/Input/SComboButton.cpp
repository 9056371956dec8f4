#include "Widgets/Input/SComboButton.h"

#include "Widgets/Images/SImage.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/SOverlay.h"

void SComboButton::Construct(const FArguments& InArgs)
{
	check(InArgs._ComboButtonStyle);
	const FButtonStyle* const OurButtonStyle = InArgs._ButtonStyle ? InArgs._ButtonStyle : &InArgs._ComboButtonStyle->ButtonStyle;

	MenuBorderBrush = &InArgs._ComboButtonStyle->MenuBorderBrush;
	MenuBorderPadding = InArgs._ComboButtonStyle->MenuBorderPadding;
	OnComboBoxOpened = InArgs._OnComboBoxOpened;
	ContentWidgetPtr = InArgs._MenuContent.Widget;
	bIsFocusable = InArgs._IsFocusable;

	const bool bHasDownArrowShadow = !InArgs._ComboButtonStyle->ShadowOffset.IsZero();
	const EVisibility ArrowVisibility = InArgs._HasDownArrow ? EVisibility::Visible : EVisibility::Collapsed;

	// A button holding the content, with the down arrow (and its shadow) at its right.
	SMenuAnchor::Construct(SMenuAnchor::FArguments()
							   .Placement(InArgs._MenuPlacement)
							   .OnMenuOpenChanged(InArgs._OnMenuOpenChanged)
							   .OnGetMenuContent(InArgs._OnGetMenuContent)
								   [SNew(SButton)
										   .ButtonStyle(OurButtonStyle)
										   .OnClicked(this, &SComboButton::OnButtonClicked)
										   .ContentPadding(InArgs._ContentPadding.IsSet() ? InArgs._ContentPadding : InArgs._ComboButtonStyle->ContentPadding)
										   .ForegroundColor(InArgs._ForegroundColor)
										   .ButtonColorAndOpacity(InArgs._ButtonColorAndOpacity)
										   .IsFocusable(InArgs._IsFocusable)
											   [SNew(SHorizontalBox) + SHorizontalBox::Slot().Expose(ButtonContentSlot).FillWidth(1.0f).HAlign(InArgs._HAlign).VAlign(InArgs._VAlign)[InArgs._ButtonContent.Widget] + SHorizontalBox::Slot().AutoWidth().HAlign(HAlign_Right).VAlign(InArgs._HasDownArrow ? InArgs._ComboButtonStyle->DownArrowAlign : VAlign_Center).Padding(InArgs._HasDownArrow ? InArgs._ComboButtonStyle->DownArrowPadding : FMargin(0.0f))[SNew(SOverlay) + SOverlay::Slot().VAlign(VAlign_Top).Padding(FMargin(static_cast<float>(InArgs._ComboButtonStyle->ShadowOffset.X), static_cast<float>(InArgs._ComboButtonStyle->ShadowOffset.Y), 0.0f, 0.0f))[SNew(SImage).Visibility(InArgs._HasDownArrow && bHasDownArrowShadow ? EVisibility::Visible : EVisibility::Collapsed).Image(&InArgs._ComboButtonStyle->DownArrowImage).ColorAndOpacity(InArgs._ComboButtonStyle->ShadowColorAndOpacity)] + SOverlay::Slot().VAlign(VAlign_Top)[SNew(SImage).Visibility(ArrowVisibility).Image(&InArgs._ComboButtonStyle->DownArrowImage).ColorAndOpacity(FSlateColor::UseForeground())]]]]);

	// The menu is kept until the button is clicked, then shown in a window of its own.
	if (InArgs._MenuContent.Widget != SNullWidget::NullWidget)
	{
		SetMenuContent(InArgs._MenuContent.Widget);
	}
}

void SComboButton::SetMenuContent(TSharedRef<SWidget> InContent)
{
	WrappedContent = MenuContent = SNew(SBorder).BorderImage(MenuBorderBrush).Padding(MenuBorderPadding)[InContent];
}

void SComboButton::SetOnGetMenuContent(FOnGetContent InOnGetMenuContent)
{
	OnGetMenuContent = InOnGetMenuContent;
}

FReply SComboButton::OnButtonClicked()
{
	SetIsOpen(!IsOpen(), false);
	if (IsOpen())
	{
		OnComboBoxOpened.ExecuteIfBound();
	}
	return FReply::Handled();
}
