#pragma once

#include "CoreMinimal.h"
#include "Framework/SlateDelegates.h"
#include "Styling/CoreStyle.h"
#include "Styling/ISlateStyle.h"
#include "Styling/SlateTypes.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/Layout/SBorder.h"

/** A clickable button holding text or any other content. */
class SLATE_API SButton : public SBorder
{
public:
	SLATE_BEGIN_ARGS(SButton)
		: _Content()
		, _ButtonStyle(&FCoreStyle::Get().GetWidgetStyle<FButtonStyle>("Button"))
		, _TextStyle(&FCoreStyle::Get().GetWidgetStyle<FTextBlockStyle>("ButtonText"))
		, _HAlign(HAlign_Fill)
		, _VAlign(VAlign_Fill)
		, _ContentPadding(FMargin(4.0f, 2.0f))
		, _Text()
		, _ButtonColorAndOpacity(FLinearColor::White)
		, _DesiredSizeScale(FVector2D(1, 1))
		, _ContentScale(FVector2D(1, 1))
		, _ForegroundColor(FSlateColor::UseStyle())
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
		/** Sets the scale of the button's desired size */
		SLATE_ATTRIBUTE(FVector2D, DesiredSizeScale)
		/** Sets the scale of the button's content */
		SLATE_ATTRIBUTE(FVector2D, ContentScale)
		/** The color multiplier for the button images */
		SLATE_ATTRIBUTE(FSlateColor, ButtonColorAndOpacity)
		/** The foreground color of the button */
		SLATE_ATTRIBUTE(FSlateColor, ForegroundColor)
		/** Sometimes a button should only be mouse-clickable and never keyboard focusable. */
		SLATE_ARGUMENT(bool, IsFocusable)
		SLATE_END_ARGS()

		SButton();

	public:
		virtual FSlateColor GetForegroundColor() const final;
		virtual FSlateColor GetDisabledForegroundColor() const final;

		/** @return whether the button is pressed */
		bool IsPressed() const { return bIsPressed; }

		void Construct(const FArguments& InArgs);

		void SetContentPadding(TAttribute<FMargin> InContentPadding) { ContentPaddingAttribute = MoveTemp(InContentPadding); }
		/** See OnClicked event */
		void SetOnClicked(FOnClicked InOnClicked) { OnClicked = MoveTemp(InOnClicked); }
		void SetButtonStyle(const FButtonStyle* ButtonStyle);

		/** Acts as if the button had been clicked: runs OnClicked. */
		void SimulateClick();

	public:
		/** Draws the style's brush for the button's state, then the content. */
		virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;
		virtual bool SupportsKeyboardFocus() const override { return bIsFocusable; }
		virtual FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;
		virtual FReply OnKeyUp(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;
		virtual bool IsInteractable() const override { return IsEnabled(); }

	private:
		/** The content with its padding; the brush's size when the button has no content. */
		virtual FVector2D ComputeDesiredSize(float) const override;

	protected:
		FReply ExecuteOnClick();
		/** The content padding plus the style's padding for the button's state. */
		FMargin GetCombinedPadding() const;
		/** Whether the button greys itself when disabled: only when its style has no brush for that. */
		bool GetShowDisabledEffect() const;

	private:
		/** The style's brush for the button's state. */
		const FSlateBrush* GetStateBrush() const;

		const FButtonStyle* Style;
		FOnClicked OnClicked;
		FSimpleDelegate OnPressed;
		FSimpleDelegate OnReleased;
		TAttribute<FSlateColor> BorderForegroundColorAttribute;
		TAttribute<FMargin> ContentPaddingAttribute;
		bool bIsFocusable;
		bool bIsPressed;
};
