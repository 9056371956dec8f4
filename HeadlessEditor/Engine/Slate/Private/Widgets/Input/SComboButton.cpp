#include "Widgets/Input/SComboButton.h"

SComboButton::SComboButton()
	: bIsFocusable(true)
	, bIsOpen(false)
{
}

void SComboButton::Construct(const FArguments& InArgs)
{
	OnGetMenuContent = InArgs._OnGetMenuContent;
	OnMenuOpenChanged = InArgs._OnMenuOpenChanged;
	OnComboBoxOpened = InArgs._OnComboBoxOpened;
	bIsFocusable = InArgs._IsFocusable;
	if (InArgs._MenuContent.Widget != SNullWidget::NullWidget)
	{
		MenuContent = InArgs._MenuContent.Widget;
	}
	SetForegroundColor(InArgs._ForegroundColor);

	// The engine wraps the content in a button with a down arrow; the content is what a user reads.
	ChildSlot
		.HAlign(InArgs._HAlign)
		.VAlign(InArgs._VAlign)
		.Padding(InArgs._ContentPadding)
			[InArgs._ButtonContent.Widget];
}

void SComboButton::SetIsOpen(bool InIsOpen, const bool bFocusMenu, const int32 FocusUserIndex)
{
	if (InIsOpen == bIsOpen)
	{
		return;
	}
	bIsOpen = InIsOpen;
	if (bIsOpen && OnGetMenuContent.IsBound())
	{
		MenuContent = OnGetMenuContent.Execute();
	}
	OnMenuOpenChanged.ExecuteIfBound(bIsOpen);
	if (bIsOpen)
	{
		OnComboBoxOpened.ExecuteIfBound();
	}
}

FReply SComboButton::OnButtonClicked()
{
	SetIsOpen(!IsOpen());
	return FReply::Handled();
}
