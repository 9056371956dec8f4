#pragma once

#include "CoreMinimal.h"
#include "Framework/SlateDelegates.h"
#include "Styling/SlateTypes.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/Layout/SBorder.h"

/** A clickable button holding text or any other content. */
class SLATE_API SButton : public SBorder
{
public:
	SLATE_BEGIN_ARGS(SButton)
		: _Content()
		, _ButtonStyle(&FButtonStyle::GetDefault())
		, _TextStyle(&FTextBlockStyle::GetDefault())
		, _HAlign(HAlign_Fill)
		, _VAlign(VAlign_Fill)
		, _ContentPadding(FMargin(4.0f, 2.0f))
		, _Text()
		, _ButtonColorAndOpacity(FLinearColor::White)
		, _ForegroundColor(FSlateColor::UseForeground())
		, _IsFocusable(true)
		{
		}
		/** Slot for this button's content (optional) */
		SLATE_DEFAULT_SLOT(FArguments, Content)
		/** The visual style of the button */
		SLATE_STYLE_ARGUMENT(FButtonStyle, ButtonStyle)
		/** The text style of the button */
		SLATE_STYLE_ARGUMENT(FTextBlockStyle, TextStyle)
		/** Horizontal alignment */
		SLATE_ARGUMENT(EHorizontalAlignment, HAlign)
		/** Vertical alignment */
		SLATE_ARGUMENT(EVerticalAlignment, VAlign)
		/** Spacing between button's border and the content. */
		SLATE_ATTRIBUTE(FMargin, ContentPadding)
		/** The text to display in this button, if no custom content is specified */
		SLATE_ATTRIBUTE(FText, Text)
		/** Called when the button is clicked */
		SLATE_EVENT(FOnClicked, OnClicked)
		/** Called when the button is pressed */
		SLATE_EVENT(FSimpleDelegate, OnPressed)
		/** Called when the button is released */
		SLATE_EVENT(FSimpleDelegate, OnReleased)
		SLATE_EVENT(FSimpleDelegate, OnHovered)
		SLATE_EVENT(FSimpleDelegate, OnUnhovered)
		/** The color multiplier for the button images */
		SLATE_ATTRIBUTE(FSlateColor, ButtonColorAndOpacity)
		/** The foreground color of the button */
		SLATE_ATTRIBUTE(FSlateColor, ForegroundColor)
		/** Sometimes a button should only be mouse-clickable and never keyboard focusable. */
		SLATE_ARGUMENT(bool, IsFocusable)
		SLATE_END_ARGS()

		SButton();
		void Construct(const FArguments& InArgs);

		/** @return An image that represents this button's border */
		bool IsPressed() const { return bIsPressed; }

		/** See OnClicked event */
		void SetOnClicked(FOnClicked InOnClicked) { OnClicked = MoveTemp(InOnClicked); }

		/** Acts as if the button had been clicked: runs OnClicked. */
		void SimulateClick();

		virtual bool SupportsKeyboardFocus() const override { return bIsFocusable; }
		virtual bool IsInteractable() const override { return IsEnabled(); }
		virtual FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;
		virtual FReply OnKeyUp(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;

	private:
		FReply ExecuteOnClick();

		FOnClicked OnClicked;
		FSimpleDelegate OnPressed;
		FSimpleDelegate OnReleased;
		bool bIsFocusable;
		bool bIsPressed;
};
