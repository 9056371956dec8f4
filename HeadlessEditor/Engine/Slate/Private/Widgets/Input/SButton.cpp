#include "Widgets/Input/SButton.h"

#include "Widgets/Text/STextBlock.h"

SButton::SButton()
	: bIsFocusable(true)
	, bIsPressed(false)
{
}

void SButton::Construct(const FArguments& InArgs)
{
	bIsFocusable = InArgs._IsFocusable;
	OnClicked = InArgs._OnClicked;
	OnPressed = InArgs._OnPressed;
	OnReleased = InArgs._OnReleased;

	// A Text argument makes the content a text block in the button's text style.
	TSharedRef<SWidget> Content = InArgs._Content.Widget;
	if (InArgs._Text.IsSet())
	{
		Content = SNew(STextBlock)
					  .Text(InArgs._Text)
					  .TextStyle(InArgs._TextStyle);
	}

	SBorder::Construct(SBorder::FArguments()
						   .ForegroundColor(InArgs._ForegroundColor)
						   .BorderBackgroundColor(InArgs._ButtonColorAndOpacity)
						   .Padding(InArgs._ContentPadding)
						   .HAlign(InArgs._HAlign)
						   .VAlign(InArgs._VAlign)
							   [Content]);
}

void SButton::SimulateClick()
{
	ExecuteOnClick();
}

FReply SButton::ExecuteOnClick()
{
	if (OnClicked.IsBound())
	{
		return OnClicked.Execute();
	}
	return FReply::Handled();
}

FReply SButton::OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent)
{
	// The accept keys press the button; the click itself comes when the key is released.
	if (IsEnabled() && (InKeyEvent.GetKey() == EKeys::Enter || InKeyEvent.GetKey() == EKeys::SpaceBar))
	{
		bIsPressed = true;
		OnPressed.ExecuteIfBound();
		return FReply::Handled();
	}
	return SBorder::OnKeyDown(MyGeometry, InKeyEvent);
}

FReply SButton::OnKeyUp(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent)
{
	if (bIsPressed && IsEnabled() && (InKeyEvent.GetKey() == EKeys::Enter || InKeyEvent.GetKey() == EKeys::SpaceBar))
	{
		bIsPressed = false;
		OnReleased.ExecuteIfBound();
		return ExecuteOnClick();
	}
	return FReply::Unhandled();
}
