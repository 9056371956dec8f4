#include "Widgets/Input/SEditableText.h"

#include "Fonts/FontMeasure.h"
#include "Framework/Application/SlateApplication.h"
#include "Layout/Children.h"
#include "Rendering/DrawElements.h"
#include "Styling/WidgetStyle.h"

#include <algorithm>

namespace
{
	/** The caret's width: it sits after the last character, so the text leaves room for it. */
	const float CaretWidth = 2.0f;
	/** A hint shows in the text's colour, faded. */
	const float HintOpacity = 0.35f;

	const FSlateFontMeasure& GetFontMeasure()
	{
		return FSlateApplication::Get().GetRenderer()->GetFontMeasureService().Get();
	}
}

SEditableText::SEditableText()
	: Style(&FCoreStyle::Get().GetWidgetStyle<FEditableTextStyle>("NormalEditableText"))
	, bIsEditing(false)
	, bAllTextSelected(false)
{
}

SEditableText::~SEditableText() = default;

void SEditableText::Construct(const FArguments& InArgs)
{
	check(InArgs._Style);
	Style = InArgs._Style;
	BoundText = InArgs._Text;
	EditedText = BoundText.Get(FText::GetEmpty());
	HintText = InArgs._HintText;
	Font = InArgs._Font;
	ColorAndOpacity = InArgs._ColorAndOpacity;
	bIsReadOnly = InArgs._IsReadOnly;
	bSelectAllTextWhenFocused = InArgs._SelectAllTextWhenFocused;
	bRevertTextOnEscape = InArgs._RevertTextOnEscape;
	bClearKeyboardFocusOnCommit = InArgs._ClearKeyboardFocusOnCommit;
	MinDesiredWidth = InArgs._MinDesiredWidth;
	OnTextChangedCallback = InArgs._OnTextChanged;
	OnTextCommittedCallback = InArgs._OnTextCommitted;
}

void SEditableText::SetText(const TAttribute<FText>& InNewText)
{
	BoundText = InNewText;
	EditedText = BoundText.Get(FText::GetEmpty());
	bIsEditing = false;
}

FText SEditableText::GetText() const
{
	// While the user edits a bound text, the box shows what was typed until it is committed.
	if (BoundText.IsBound() && !bIsEditing)
	{
		return BoundText.Get();
	}
	return EditedText;
}

void SEditableText::SetHintText(const TAttribute<FText>& InHintText)
{
	HintText = InHintText;
}

FText SEditableText::GetHintText() const
{
	return HintText.Get(FText::GetEmpty());
}

void SEditableText::SetIsReadOnly(TAttribute<bool> InIsReadOnly)
{
	bIsReadOnly = MoveTemp(InIsReadOnly);
}

void SEditableText::SetColorAndOpacity(TAttribute<FSlateColor> Color)
{
	ColorAndOpacity = MoveTemp(Color);
}

void SEditableText::SetFont(const TAttribute<FSlateFontInfo>& InNewFont)
{
	Font = InNewFont;
}

void SEditableText::SetMinDesiredWidth(const TAttribute<float>& InMinDesiredWidth)
{
	MinDesiredWidth = InMinDesiredWidth;
}

bool SEditableText::IsTextReadOnly() const
{
	return bIsReadOnly.Get(false);
}

FSlateFontInfo SEditableText::GetFont() const
{
	return Font.IsSet() ? Font.Get() : Style->Font;
}

FVector2D SEditableText::ComputeDesiredSize(float LayoutScaleMultiplier) const
{
	// As wide as the text or the hint, whichever is wider, with room for the caret.
	const FSlateFontInfo FontInfo = GetFont();
	const FVector2D TextSize = GetFontMeasure().Measure(GetText().ToString(), FontInfo, LayoutScaleMultiplier) / static_cast<double>(LayoutScaleMultiplier);
	const FVector2D HintSize = GetFontMeasure().Measure(GetHintText().ToString(), FontInfo, LayoutScaleMultiplier) / static_cast<double>(LayoutScaleMultiplier);
	const double Width = std::max({TextSize.X, HintSize.X, static_cast<double>(MinDesiredWidth.Get(0.0f))}) + CaretWidth;
	return FVector2D(Width, std::max(TextSize.Y, HintSize.Y));
}

FChildren* SEditableText::GetChildren()
{
	return &FNoChildren::NoChildrenInstance;
}

void SEditableText::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
}

int32 SEditableText::OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	const ESlateDrawEffect DrawEffects = ShouldBeEnabled(bParentEnabled) ? ESlateDrawEffect::None : ESlateDrawEffect::DisabledEffect;
	const FString Text = GetText().ToString();
	const bool bShowHint = Text.IsEmpty();
	const FSlateColor TextColor = ColorAndOpacity.IsSet() ? ColorAndOpacity.Get() : Style->ColorAndOpacity;
	FLinearColor Color = TextColor.GetColor(InWidgetStyle) * InWidgetStyle.GetColorAndOpacityTint();
	if (bShowHint)
	{
		Color.A *= HintOpacity;
	}
	const FSlateFontInfo FontInfo = GetFont();
	const FString Shown = bShowHint ? GetHintText().ToString() : Text;
	const FVector2D TextSize = GetFontMeasure().Measure(Shown, FontInfo, AllottedGeometry.Scale) / static_cast<double>(AllottedGeometry.Scale);
	// The line is centred in the widget's height, as a single line of editable text is.
	const double Top = (AllottedGeometry.GetLocalSize().Y - TextSize.Y) / 2.0;
	FSlateDrawElement::MakeText(OutDrawElements, LayerId, AllottedGeometry.ToPaintGeometry(FVector2D(0.0, Top), TextSize), Shown, FontInfo, DrawEffects, Color);
	if (!HasKeyboardFocus())
	{
		return LayerId;
	}
	// The caret follows the last character; it is drawn steadily, without blinking.
	const double CaretLeft = bShowHint ? 0.0 : TextSize.X;
	FSlateDrawElement::MakeBox(OutDrawElements, LayerId + 1, AllottedGeometry.ToPaintGeometry(FVector2D(CaretLeft, Top), FVector2D(CaretWidth / 2.0f, TextSize.Y)), &Style->CaretImage, DrawEffects, Style->CaretImage.GetTint(InWidgetStyle) * InWidgetStyle.GetColorAndOpacityTint());
	return LayerId + 1;
}

bool SEditableText::SupportsKeyboardFocus() const
{
	return true;
}

FReply SEditableText::OnFocusReceived(const FGeometry& MyGeometry, const FFocusEvent& InFocusEvent)
{
	bAllTextSelected = bSelectAllTextWhenFocused.Get(false);
	return FReply::Handled();
}

void SEditableText::OnFocusLost(const FFocusEvent& InFocusEvent)
{
	bAllTextSelected = false;
	// Leaving the text commits what was typed; the cause says how the user left it.
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

FReply SEditableText::OnKeyChar(const FGeometry& MyGeometry, const FCharacterEvent& InCharacterEvent)
{
	const TCHAR Character = InCharacterEvent.GetCharacter();
	switch (Character)
	{
		// Line feed, Ctrl+A/C/V/X/Y/Z, Enter, Escape and Ctrl+Backspace come as key presses too; only those are acted on.
		case TCHAR('\n'):
		case 1:
		case 3:
		case 13:
		case 22:
		case 24:
		case 25:
		case 26:
		case 27:
		case 127:
			return FReply::Handled();
		default:
			break;
	}
	// A tab is typed; other control characters are not.
	if (IsTextReadOnly() || (Character <= 0x1F && Character != TEXT('\t')))
	{
		return FReply::Unhandled();
	}
	const FString Typed = FString::Chr(Character);
	HandleUserEdit(FText::FromString(bAllTextSelected ? Typed : GetText().ToString() + Typed));
	bAllTextSelected = false;
	return FReply::Handled();
}

FReply SEditableText::OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent)
{
	const FKey Key = InKeyEvent.GetKey();
	if (Key == EKeys::A && InKeyEvent.IsControlDown())
	{
		bAllTextSelected = true;
		return FReply::Handled();
	}
	// Enter commits the text and is consumed, as single-line editable text does.
	if (Key == EKeys::Enter && !IsTextReadOnly())
	{
		FReply Reply = FReply::Handled();
		if (!InKeyEvent.IsRepeat())
		{
			HandleCommit(ETextCommit::OnEnter);
			if (bClearKeyboardFocusOnCommit.Get(true))
			{
				Reply.ClearUserFocus(EFocusCause::Cleared);
			}
		}
		return Reply;
	}
	if (Key == EKeys::Escape && bRevertTextOnEscape.Get(false) && bIsEditing)
	{
		HandleUserEdit(TextAtEditStart);
		HandleCommit(ETextCommit::OnCleared);
		return FReply::Handled();
	}
	if (Key == EKeys::BackSpace && !IsTextReadOnly())
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
	return SWidget::OnKeyDown(MyGeometry, InKeyEvent);
}

void SEditableText::HandleUserEdit(const FText& InNewText)
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
	OnTextChangedCallback.ExecuteIfBound(EditedText);
}

void SEditableText::HandleCommit(ETextCommit::Type CommitType)
{
	const FText CommittedText = GetText();
	OnTextCommittedCallback.ExecuteIfBound(CommittedText, CommitType);
	bIsEditing = false;
	if (BoundText.IsBound())
	{
		EditedText = BoundText.Get();
	}
}
