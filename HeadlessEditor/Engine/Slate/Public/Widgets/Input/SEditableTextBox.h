#pragma once

#include "CoreMinimal.h"
#include "Framework/SlateDelegates.h"
#include "Styling/CoreStyle.h"
#include "Styling/ISlateStyle.h"
#include "Styling/SlateTypes.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/Layout/SBorder.h"

/** A single line of text the user can edit, in a box. */
class SLATE_API SEditableTextBox : public SBorder
{
public:
	SLATE_BEGIN_ARGS(SEditableTextBox)
		: _Style(&FCoreStyle::Get().GetWidgetStyle<FEditableTextBoxStyle>("NormalEditableTextBox"))
		, _Text()
		, _HintText()
		, _Font()
		, _IsReadOnly(false)
		, _SelectAllTextWhenFocused(false)
		, _RevertTextOnEscape(false)
		, _ClearKeyboardFocusOnCommit(true)
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
		/** Sets whether this text box can actually be modified interactively by the user */
		SLATE_ATTRIBUTE(bool, IsReadOnly)
		/** Whether to select all text when the user clicks to give focus on the widget */
		SLATE_ATTRIBUTE(bool, SelectAllTextWhenFocused)
		/** Whether to allow the user to back out of changes when they press the escape key */
		SLATE_ATTRIBUTE(bool, RevertTextOnEscape)
		/** Whether to clear keyboard focus when pressing enter to commit changes */
		SLATE_ATTRIBUTE(bool, ClearKeyboardFocusOnCommit)
		/** Called whenever the text is changed programmatically or interactively by the user */
		SLATE_EVENT(FOnTextChanged, OnTextChanged)
		/** Called whenever the text is committed.  This happens when the user presses enter or the text box loses focus. */
		SLATE_EVENT(FOnTextCommitted, OnTextCommitted)
		SLATE_END_ARGS()

		SEditableTextBox();
		void Construct(const FArguments& InArgs);

		/** Returns the text string shown: the bound text, or what the user typed while it is being edited. */
		FText GetText() const;

		/** Sets the text, as a value or a binding; it does not fire OnTextChanged. */
		void SetText(const TAttribute<FText>& InNewText);

		FText GetHintText() const { return HintText.Get(); }
		void SetHintText(const TAttribute<FText>& InHintText) { HintText = InHintText; }
		void SetFont(const TAttribute<FSlateFontInfo>& InFont) { Font = InFont; }
		void SetIsReadOnly(TAttribute<bool> InIsReadOnly) { ReadOnly = MoveTemp(InIsReadOnly); }
		bool IsReadOnly() const { return ReadOnly.Get(false); }

		virtual bool SupportsKeyboardFocus() const override { return true; }
		virtual FReply OnFocusReceived(const FGeometry& MyGeometry, const FFocusEvent& InFocusEvent) override;
		virtual void OnFocusLost(const FFocusEvent& InFocusEvent) override;
		virtual FReply OnKeyChar(const FGeometry& MyGeometry, const FCharacterEvent& InCharacterEvent) override;
		virtual FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;

		/** Draws the box for its state, then the text, or the hint while the text is empty. */
		virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;

	protected:
		/** A line of the text or the hint, whichever is wider, with room for the caret, inside the padding. */
		virtual FVector2D ComputeDesiredSize(float) const override;

	private:
		/** The style's background for the box's state. */
		const FSlateBrush* GetStateBrush() const;
		/** The font to draw with: the one set on the box, else the style's. */
		FSlateFontInfo GetFont() const;

		/** The user changed the text: it is shown, kept in an unbound text attribute and reported. */
		void HandleUserEdit(const FText& InNewText);
		/** The user committed the text: it is reported, then a bound text is read again. */
		void HandleCommit(ETextCommit::Type CommitType);

		const FEditableTextBoxStyle* Style;
		TAttribute<FText> BoundText;
		FText EditedText;
		/** Whether the user has edited the text since it was last committed. */
		bool bIsEditing;
		/** Whether the whole text is selected, so that the next character replaces it. */
		bool bAllTextSelected;
		TAttribute<FText> HintText;
		TAttribute<FSlateFontInfo> Font;
		TAttribute<bool> ReadOnly;
		TAttribute<bool> SelectAllTextWhenFocused;
		TAttribute<bool> RevertTextOnEscape;
		TAttribute<bool> ClearKeyboardFocusOnCommit;
		FText TextAtEditStart;
		FOnTextChanged OnTextChanged;
		FOnTextCommitted OnTextCommitted;
};
