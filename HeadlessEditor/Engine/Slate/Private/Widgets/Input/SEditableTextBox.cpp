#include "Widgets/Input/SEditableTextBox.h"

#include "Fonts/FontMeasure.h"
#include "Framework/Application/SlateApplication.h"
#include "Rendering/DrawElements.h"
#include "Styling/WidgetStyle.h"

#include <algorithm>

namespace
{
	/** The caret's width: it sits after the last character, so the box leaves room for it. */
	const float CaretWidth = 2.0f;
	/** A hint shows in the text's colour, faded. */
	const float HintOpacity = 0.35f;
}

SEditableTextBox::SEditableTextBox()
	: Style(&FCoreStyle::Get().GetWidgetStyle<FEditableTextBoxStyle>("NormalEditableTextBox"))
	, bIsEditing(false)
	, bAllTextSelected(false)
{
}

void SEditableTextBox::Construct(const FArguments& InArgs)
{
	BoundText = InArgs._Text;
	EditedText = BoundText.Get(FText::GetEmpty());
	HintText = InArgs._HintText;
	Font = InArgs._Font;
	ReadOnly = InArgs._IsReadOnly;
	SelectAllTextWhenFocused = InArgs._SelectAllTextWhenFocused;
	RevertTextOnEscape = InArgs._RevertTextOnEscape;
	ClearKeyboardFocusOnCommit = InArgs._ClearKeyboardFocusOnCommit;
	OnTextChanged = InArgs._OnTextChanged;
	OnTextCommitted = InArgs._OnTextCommitted;

	Style = InArgs._Style ? InArgs._Style : &FCoreStyle::Get().GetWidgetStyle<FEditableTextBoxStyle>("NormalEditableTextBox");

	SBorder::Construct(SBorder::FArguments()
						   .BorderImage(this, &SEditableTextBox::GetStateBrush)
						   .BorderBackgroundColor(Style->BackgroundColor)
						   .Padding(Style->Padding));
}

const FSlateBrush* SEditableTextBox::GetStateBrush() const
{
	if (IsReadOnly())
	{
		return &Style->BackgroundImageReadOnly;
	}
	return HasKeyboardFocus() ? &Style->BackgroundImageFocused : &Style->BackgroundImageNormal;
}

FSlateFontInfo SEditableTextBox::GetFont() const
{
	return Font.IsSet() ? Font.Get() : Style->TextStyle.Font;
}

FVector2D SEditableTextBox::ComputeDesiredSize(float LayoutScaleMultiplier) const
{
	const FSlateFontMeasure& FontMeasure = FSlateApplication::Get().GetRenderer()->GetFontMeasureService().Get();
	const FSlateFontInfo FontInfo = GetFont();
	const FVector2D TextSize = FontMeasure.Measure(GetText().ToString(), FontInfo, LayoutScaleMultiplier) / static_cast<double>(LayoutScaleMultiplier);
	const FVector2D HintSize = FontMeasure.Measure(GetHintText().ToString(), FontInfo, LayoutScaleMultiplier) / static_cast<double>(LayoutScaleMultiplier);
	const FVector2D LineSize(std::max(TextSize.X, HintSize.X) + CaretWidth, std::max(TextSize.Y, HintSize.Y));
	return LineSize + ChildSlot.GetPadding().GetDesiredSize();
}

int32 SEditableTextBox::OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	const int32 BoxLayer = SBorder::OnPaint(Args, AllottedGeometry, MyCullingRect, OutDrawElements, LayerId, InWidgetStyle, bParentEnabled);
	const bool bEnabled = ShouldBeEnabled(bParentEnabled);
	const FString Text = GetText().ToString();
	const bool bShowHint = Text.IsEmpty();
	const FSlateColor& TextColor = IsReadOnly() ? Style->ReadOnlyForegroundColor : HasKeyboardFocus() ? Style->FocusedForegroundColor
																									  : Style->ForegroundColor;
	FLinearColor Color = TextColor.GetColor(InWidgetStyle) * InWidgetStyle.GetColorAndOpacityTint();
	if (bShowHint)
	{
		Color.A *= HintOpacity;
	}
	const FSlateFontInfo FontInfo = GetFont();
	const FSlateFontMeasure& FontMeasure = FSlateApplication::Get().GetRenderer()->GetFontMeasureService().Get();
	const FString Shown = bShowHint ? GetHintText().ToString() : Text;
	const FMargin Padding = ChildSlot.GetPadding();
	const FVector2D TextSize = FontMeasure.Measure(Shown, FontInfo, AllottedGeometry.Scale) / static_cast<double>(AllottedGeometry.Scale);
	// The line is centred in the height inside the padding, as a single-line box centres its text.
	const double Top = Padding.Top + (AllottedGeometry.GetLocalSize().Y - Padding.GetDesiredSize().Y - TextSize.Y) / 2.0;
	FSlateDrawElement::MakeText(OutDrawElements, BoxLayer + 1, AllottedGeometry.ToPaintGeometry(FVector2D(Padding.Left, Top), TextSize), Shown, FontInfo, bEnabled ? ESlateDrawEffect::None : ESlateDrawEffect::DisabledEffect, Color);
	return BoxLayer + 1;
}

FText SEditableTextBox::GetText() const
{
	if (BoundText.IsBound() && !bIsEditing)
	{
		return BoundText.Get();
	}
	return EditedText;
}

void SEditableTextBox::SetText(const TAttribute<FText>& InNewText)
{
	BoundText = InNewText;
	EditedText = BoundText.Get(FText::GetEmpty());
	bIsEditing = false;
}

FReply SEditableTextBox::OnFocusReceived(const FGeometry& MyGeometry, const FFocusEvent& InFocusEvent)
{
	bAllTextSelected = SelectAllTextWhenFocused.Get(false);
	return FReply::Handled();
}

void SEditableTextBox::OnFocusLost(const FFocusEvent& InFocusEvent)
{
	bAllTextSelected = false;
	// Leaving the box commits what was typed; the cause says how the user left it.
	if (bIsEditing)
	{
		switch (InFocusEvent.GetCause())
		{
			case EFocusCause::Mouse:
			case EFocusCause::Navigation:
				HandleCommit(ETextCommit::OnUserMovedFocus);
				break;
			case EFocusCause::Cleared:
				HandleCommit(ETextCommit::OnCleared);
				break;
			default:
				HandleCommit(ETextCommit::Default);
				break;
		}
	}
}

FReply SEditableTextBox::OnKeyChar(const FGeometry& MyGeometry, const FCharacterEvent& InCharacterEvent)
{
	const TCHAR Character = InCharacterEvent.GetCharacter();
	// Control characters arrive as key presses; only printable ones are typed.
	if (IsReadOnly() || Character < TEXT(' ') || Character == 127)
	{
		return FReply::Unhandled();
	}
	const FString Typed = FString::Chr(Character);
	HandleUserEdit(FText::FromString(bAllTextSelected ? Typed : GetText().ToString() + Typed));
	bAllTextSelected = false;
	return FReply::Handled();
}

FReply SEditableTextBox::OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent)
{
	const FKey Key = InKeyEvent.GetKey();
	if (Key == EKeys::A && InKeyEvent.IsControlDown())
	{
		bAllTextSelected = true;
		return FReply::Handled();
	}
	// Enter commits the text and is consumed by the box, as the engine's single-line text box does.
	if (Key == EKeys::Enter && !IsReadOnly())
	{
		if (!InKeyEvent.IsRepeat())
		{
			HandleCommit(ETextCommit::OnEnter);
			if (ClearKeyboardFocusOnCommit.Get(true) && HasKeyboardFocus())
			{
				FSlateApplication::Get().ClearKeyboardFocus(EFocusCause::Cleared);
			}
		}
		return FReply::Handled();
	}
	if (Key == EKeys::Escape && RevertTextOnEscape.Get(false) && bIsEditing)
	{
		HandleUserEdit(TextAtEditStart);
		HandleCommit(ETextCommit::OnCleared);
		return FReply::Handled();
	}
	if (Key == EKeys::BackSpace && !IsReadOnly())
	{
		const FString Current = GetText().ToString();
		if (bAllTextSelected)
		{
			HandleUserEdit(FText::GetEmpty());
		}
		else if (!Current.IsEmpty())
		{
			HandleUserEdit(FText::FromString(Current.Left(Current.Len() - 1)));
		}
		bAllTextSelected = false;
		return FReply::Handled();
	}
	return SBorder::OnKeyDown(MyGeometry, InKeyEvent);
}

void SEditableTextBox::HandleUserEdit(const FText& InNewText)
{
	if (!bIsEditing)
	{
		TextAtEditStart = GetText();
		bIsEditing = true;
	}
	EditedText = InNewText;
	// A getter binding is expected to follow through OnTextChanged; a plain value keeps what was typed.
	if (!BoundText.IsBound())
	{
		BoundText.Set(EditedText);
	}
	OnTextChanged.ExecuteIfBound(EditedText);
}

void SEditableTextBox::HandleCommit(ETextCommit::Type CommitType)
{
	const FText CommittedText = GetText();
	OnTextCommitted.ExecuteIfBound(CommittedText, CommitType);
	bIsEditing = false;
	if (BoundText.IsBound())
	{
		EditedText = BoundText.Get();
	}
}
