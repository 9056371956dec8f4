#pragma once

#include "CoreMinimal.h"
#include "Framework/SlateDelegates.h"
#include "Styling/CoreStyle.h"
#include "Styling/ISlateStyle.h"
#include "Styling/SlateTypes.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/Input/SEditableText.h"
#include "Widgets/Layout/SBorder.h"

class SBox;
class SHorizontalBox;

/** Editable text box widget */
class SLATE_API SEditableTextBox : public SBorder
{
public:
	SLATE_BEGIN_ARGS(SEditableTextBox)
		: _Style(&FCoreStyle::Get().GetWidgetStyle<FEditableTextBoxStyle>("NormalEditableTextBox"))
		, _Text()
		, _HintText()
		, _Font()
		, _ForegroundColor()
		, _ReadOnlyForegroundColor()
		, _FocusedForegroundColor()
		, _IsReadOnly(false)
		, _SelectAllTextWhenFocused(false)
		, _RevertTextOnEscape(false)
		, _ClearKeyboardFocusOnCommit(true)
		, _MinDesiredWidth(0.0f)
		{
		}
		/** The styling of the textbox */
		SLATE_STYLE_ARGUMENT(FEditableTextBoxStyle, Style)
		/** Sets the text content for this editable text box widget */
		SLATE_ATTRIBUTE(FText, Text)
		/** Hint text that appears when there is no text in the text box */
		SLATE_ATTRIBUTE(FText, HintText)
		/** Font color and opacity (overrides Style) */
		SLATE_ATTRIBUTE(FSlateFontInfo, Font)
		/** Text color and opacity (overrides Style) */
		SLATE_ATTRIBUTE(FSlateColor, ForegroundColor)
		/** Text color and opacity when read-only (overrides Style) */
		SLATE_ATTRIBUTE(FSlateColor, ReadOnlyForegroundColor)
		/** Text color and opacity when this box has keyboard focus (overrides Style) */
		SLATE_ATTRIBUTE(FSlateColor, FocusedForegroundColor)
		/** Sets whether this text box can actually be modified interactively by the user */
		SLATE_ATTRIBUTE(bool, IsReadOnly)
		/** Whether to select all text when the user clicks to give focus on the widget */
		SLATE_ATTRIBUTE(bool, SelectAllTextWhenFocused)
		/** Whether to allow the user to back out of changes when they press the escape key */
		SLATE_ATTRIBUTE(bool, RevertTextOnEscape)
		/** Whether to clear keyboard focus when pressing enter to commit changes */
		SLATE_ATTRIBUTE(bool, ClearKeyboardFocusOnCommit)
		/** Padding between the box/border and the text widget inside (overrides Style) */
		SLATE_ATTRIBUTE(FMargin, Padding)
		/** Called whenever the text is changed programmatically or interactively by the user */
		SLATE_EVENT(FOnTextChanged, OnTextChanged)
		/** Called whenever the text is committed.  This happens when the user presses enter or the text box loses focus. */
		SLATE_EVENT(FOnTextCommitted, OnTextCommitted)
		/** Minimum width that a text block should be */
		SLATE_ATTRIBUTE(float, MinDesiredWidth)
		SLATE_END_ARGS()

		SEditableTextBox();
		void Construct(const FArguments& InArgs);

		/**
		 * Returns the text string
		 *
		 * @return  Text string
		 */
		FText GetText() const { return EditableText->GetText(); }

		/**
		 * Sets the text string currently being edited
		 *
		 * @param  InNewText  The new text string
		 */
		void SetText(const TAttribute<FText>& InNewText);

		/** Returns the Hint text string */
		FText GetHintText() const { return EditableText->GetHintText(); }

		/** See the HintText attribute */
		void SetHintText(const TAttribute<FText>& InHintText);

		/** See the IsReadOnly attribute */
		void SetIsReadOnly(TAttribute<bool> InIsReadOnly);

		/** Return whether a RO editable text box */
		bool IsReadOnly() const { return EditableText->IsTextReadOnly(); }

		/**
		 * Sets the font used to draw the text
		 *
		 * @param  InFont	The new font to use
		 */
		void SetFont(const TAttribute<FSlateFontInfo>& InFont);

		// SWidget overrides
		virtual bool SupportsKeyboardFocus() const override;
		virtual bool HasKeyboardFocus() const override;
		virtual FReply OnFocusReceived(const FGeometry& MyGeometry, const FFocusEvent& InFocusEvent) override;
		virtual FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;

	protected:
		/** Callback for the editable text's OnTextChanged event */
		void OnEditableTextChanged(const FText& InText);

		/** Callback when the editable text is committed. */
		void OnEditableTextCommitted(const FText& InText, ETextCommit::Type InCommitType);

		/** Style shared between all editable text boxes. */
		const FEditableTextBoxStyle* Style;

		/** Box widget that adds padding around the editable text */
		TSharedPtr<SBox> PaddingBox;

		/** Editable text widget */
		TSharedPtr<SEditableText> EditableText;

		/** Padding (overrides style) */
		TAttribute<FMargin> PaddingOverride;

		/** Font (overrides style) */
		TAttribute<FSlateFontInfo> FontOverride;

		/** Foreground color (overrides style) */
		TAttribute<FSlateColor> ForegroundColorOverride;

		/** Read-only foreground color (overrides style) */
		TAttribute<FSlateColor> ReadOnlyForegroundColorOverride;

		/** Focused foreground color (overrides style) */
		TAttribute<FSlateColor> FocusedForegroundColorOverride;

		/** Horizontal box that holds the editable text. */
		TSharedPtr<SHorizontalBox> Box;

		/** Called when the text is changed interactively */
		FOnTextChanged OnTextChanged;

		/** Called when the user commits their change to the editable text control */
		FOnTextCommitted OnTextCommitted;

	private:
		FMargin DeterminePadding() const;
		FSlateFontInfo DetermineFont() const;
		FSlateColor DetermineBackgroundColor() const;
		FSlateColor DetermineForegroundColor() const;

		/** The style's background for the box's state. */
		const FSlateBrush* GetBorderImage() const;
};
