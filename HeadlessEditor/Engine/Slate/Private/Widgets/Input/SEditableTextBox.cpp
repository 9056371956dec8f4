#include "Widgets/Input/SEditableTextBox.h"

#include "Widgets/Layout/SBox.h"
#include "Widgets/SBoxPanel.h"

SEditableTextBox::SEditableTextBox()
	: Style(&FCoreStyle::Get().GetWidgetStyle<FEditableTextBoxStyle>("NormalEditableTextBox"))
{
}

void SEditableTextBox::Construct(const FArguments& InArgs)
{
	check(InArgs._Style);
	Style = InArgs._Style;
	PaddingOverride = InArgs._Padding;
	FontOverride = InArgs._Font;
	ForegroundColorOverride = InArgs._ForegroundColor;
	ReadOnlyForegroundColorOverride = InArgs._ReadOnlyForegroundColor;
	FocusedForegroundColorOverride = InArgs._FocusedForegroundColor;
	OnTextChanged = InArgs._OnTextChanged;
	OnTextCommitted = InArgs._OnTextCommitted;

	// The box draws its state's brush; the text inside takes the box's foreground.
	SBorder::Construct(SBorder::FArguments()
						   .BorderImage(this, &SEditableTextBox::GetBorderImage)
						   .BorderBackgroundColor(this, &SEditableTextBox::DetermineBackgroundColor)
						   .ForegroundColor(this, &SEditableTextBox::DetermineForegroundColor)
						   .Padding(0.0f)
							   [SAssignNew(Box, SHorizontalBox) + SHorizontalBox::Slot().VAlign(VAlign_Fill).HAlign(HAlign_Fill).FillWidth(1.0f)[SAssignNew(PaddingBox, SBox).Padding(this, &SEditableTextBox::DeterminePadding).VAlign(VAlign_Center)[SAssignNew(EditableText, SEditableText).Text(InArgs._Text).HintText(InArgs._HintText).Font(this, &SEditableTextBox::DetermineFont).IsReadOnly(InArgs._IsReadOnly).SelectAllTextWhenFocused(InArgs._SelectAllTextWhenFocused).RevertTextOnEscape(InArgs._RevertTextOnEscape).ClearKeyboardFocusOnCommit(InArgs._ClearKeyboardFocusOnCommit).OnTextChanged(this, &SEditableTextBox::OnEditableTextChanged).OnTextCommitted(this, &SEditableTextBox::OnEditableTextCommitted).MinDesiredWidth(InArgs._MinDesiredWidth)]]]);
}

void SEditableTextBox::SetText(const TAttribute<FText>& InNewText)
{
	EditableText->SetText(InNewText);
}

void SEditableTextBox::SetHintText(const TAttribute<FText>& InHintText)
{
	EditableText->SetHintText(InHintText);
}

void SEditableTextBox::SetIsReadOnly(TAttribute<bool> InIsReadOnly)
{
	EditableText->SetIsReadOnly(MoveTemp(InIsReadOnly));
}

void SEditableTextBox::SetFont(const TAttribute<FSlateFontInfo>& InFont)
{
	FontOverride = InFont;
}

bool SEditableTextBox::SupportsKeyboardFocus() const
{
	return StaticCastSharedPtr<SWidget>(EditableText)->SupportsKeyboardFocus();
}

bool SEditableTextBox::HasKeyboardFocus() const
{
	// The box hands its focus to the text inside.
	return SBorder::HasKeyboardFocus() || EditableText->HasKeyboardFocus();
}

FReply SEditableTextBox::OnFocusReceived(const FGeometry& MyGeometry, const FFocusEvent& InFocusEvent)
{
	FReply Reply = FReply::Handled();
	if (InFocusEvent.GetCause() != EFocusCause::Cleared)
	{
		Reply.SetUserFocus(EditableText.ToSharedRef(), InFocusEvent.GetCause());
	}
	return Reply;
}

FReply SEditableTextBox::OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent)
{
	// Escape leaves the text, unless the text used it to revert.
	if (InKeyEvent.GetKey() == EKeys::Escape && EditableText->HasKeyboardFocus())
	{
		return FReply::Handled().SetUserFocus(SharedThis(this), EFocusCause::Cleared);
	}
	return FReply::Unhandled();
}

void SEditableTextBox::OnEditableTextChanged(const FText& InText)
{
	OnTextChanged.ExecuteIfBound(InText);
}

void SEditableTextBox::OnEditableTextCommitted(const FText& InText, ETextCommit::Type InCommitType)
{
	OnTextCommitted.ExecuteIfBound(InText, InCommitType);
}

FMargin SEditableTextBox::DeterminePadding() const
{
	return PaddingOverride.IsSet() ? PaddingOverride.Get() : Style->Padding;
}

FSlateFontInfo SEditableTextBox::DetermineFont() const
{
	return FontOverride.IsSet() ? FontOverride.Get() : Style->TextStyle.Font;
}

FSlateColor SEditableTextBox::DetermineBackgroundColor() const
{
	return Style->BackgroundColor;
}

FSlateColor SEditableTextBox::DetermineForegroundColor() const
{
	if (EditableText->IsTextReadOnly())
	{
		if (ReadOnlyForegroundColorOverride.IsSet())
		{
			return ReadOnlyForegroundColorOverride.Get();
		}
		return ForegroundColorOverride.IsSet() ? ForegroundColorOverride.Get() : Style->ReadOnlyForegroundColor;
	}
	if (HasKeyboardFocus())
	{
		return FocusedForegroundColorOverride.IsSet() ? FocusedForegroundColorOverride.Get() : Style->FocusedForegroundColor;
	}
	return ForegroundColorOverride.IsSet() ? ForegroundColorOverride.Get() : Style->ForegroundColor;
}

const FSlateBrush* SEditableTextBox::GetBorderImage() const
{
	if (EditableText->IsTextReadOnly())
	{
		return &Style->BackgroundImageReadOnly;
	}
	if (EditableText->HasKeyboardFocus())
	{
		return &Style->BackgroundImageFocused;
	}
	// There is no pointer input to hover the box with, so the hovered brush is never shown.
	return &Style->BackgroundImageNormal;
}
