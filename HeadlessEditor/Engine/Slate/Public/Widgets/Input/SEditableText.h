#pragma once

#include "CoreMinimal.h"
#include "Framework/SlateDelegates.h"
#include "Styling/CoreStyle.h"
#include "Styling/ISlateStyle.h"
#include "Styling/SlateTypes.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SWidget.h"

class FArrangedChildren;
class FChildren;

/** Editable text widget */
class SLATE_API SEditableText : public SWidget
{
public:
	SLATE_BEGIN_ARGS(SEditableText)
		: _Text()
		, _HintText()
		, _Style(&FCoreStyle::Get().GetWidgetStyle<FEditableTextStyle>("NormalEditableText"))
		, _Font()
		, _ColorAndOpacity()
		, _IsReadOnly(false)
		, _SelectAllTextWhenFocused(false)
		, _RevertTextOnEscape(false)
		, _ClearKeyboardFocusOnCommit(true)
		, _MinDesiredWidth(0.0f)
		{
		}
		/** The initial text that will appear in the widget. */
		SLATE_ATTRIBUTE(FText, Text)
		/** The text that appears when there is nothing typed into the search box */
		SLATE_ATTRIBUTE(FText, HintText)
		/** The style of the text block, which dictates the font, color */
		SLATE_STYLE_ARGUMENT(FEditableTextStyle, Style)
		/** Sets the font used to draw the text (overrides Style) */
		SLATE_ATTRIBUTE(FSlateFontInfo, Font)
		/** Text color and opacity (overrides Style) */
		SLATE_ATTRIBUTE(FSlateColor, ColorAndOpacity)
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
		/** Minimum width that a text block should be */
		SLATE_ATTRIBUTE(float, MinDesiredWidth)
		SLATE_END_ARGS()

		SEditableText();
		~SEditableText();

		void Construct(const FArguments& InArgs);

		/**
		 * Sets the text currently being edited
		 *
		 * @param  InNewText  The new text string
		 */
		void SetText(const TAttribute<FText>& InNewText);

		/**
		 * Returns the text string
		 *
		 * @return  Text string
		 */
		FText GetText() const;

		/**
		 * Sets the text that appears when there is no text in the text box
		 *
		 * @param  InHintText The hint text string
		 */
		void SetHintText(const TAttribute<FText>& InHintText);

		/** Get the text that appears when there is no text in the text box */
		FText GetHintText() const;

		/** See the IsReadOnly attribute */
		void SetIsReadOnly(TAttribute<bool> InIsReadOnly);

		/** Sets the text color and opacity (overrides Style) */
		void SetColorAndOpacity(TAttribute<FSlateColor> Color);

		/**
		 * Sets the font used to draw the text
		 *
		 * @param  InNewFont	The new font to use
		 */
		void SetFont(const TAttribute<FSlateFontInfo>& InNewFont);

		/** See the MinDesiredWidth attribute */
		void SetMinDesiredWidth(const TAttribute<float>& InMinDesiredWidth);

	protected:
		/** The line of text, or the hint while the text is empty, with the caret after it while focused. */
		virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;
		virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;
		virtual FChildren* GetChildren() override;
		virtual void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;
		virtual bool SupportsKeyboardFocus() const override;
		virtual FReply OnFocusReceived(const FGeometry& MyGeometry, const FFocusEvent& InFocusEvent) override;
		virtual void OnFocusLost(const FFocusEvent& InFocusEvent) override;
		virtual FReply OnKeyChar(const FGeometry& MyGeometry, const FCharacterEvent& InCharacterEvent) override;
		virtual FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;

	public:
		virtual bool IsTextReadOnly() const;

	private:
		/** The font the text is drawn in: the one set on the widget, else the style's. */
		FSlateFontInfo GetFont() const;
		/** The user changed the text: it is shown, kept in an unbound text attribute and reported. */
		void HandleUserEdit(const FText& InNewText);
		/** The user committed the text: it is reported, then a bound text is read again. */
		void HandleCommit(ETextCommit::Type CommitType);

		const FEditableTextStyle* Style;
		TAttribute<FText> BoundText;
		FText EditedText;
		/** Whether the user has edited the text since it was last committed. */
		bool bIsEditing;
		/** Whether the whole text is selected, so that the next character replaces it. */
		bool bAllTextSelected;
		FText TextAtEditStart;
		TAttribute<FText> HintText;
		TAttribute<FSlateFontInfo> Font;
		TAttribute<FSlateColor> ColorAndOpacity;
		TAttribute<bool> bIsReadOnly;
		TAttribute<bool> bSelectAllTextWhenFocused;
		TAttribute<bool> bRevertTextOnEscape;
		TAttribute<bool> bClearKeyboardFocusOnCommit;
		TAttribute<float> MinDesiredWidth;
		FOnTextChanged OnTextChangedCallback;
		FOnTextCommitted OnTextCommittedCallback;
};
