#pragma once

#include "CoreMinimal.h"
#include "Framework/SlateDelegates.h"
#include "Styling/AppStyle.h"
#include "Styling/ISlateStyle.h"
#include "Styling/SlateTypes.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

DECLARE_DELEGATE_OneParam(FOnIsOpenChanged, bool);

/**
 * A button that opens a menu when clicked. It shows its content beside a down arrow, in a button
 * drawn with its style's button brushes.
 */
class SLATE_API SComboButton : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SComboButton)
		: _ComboButtonStyle(&FAppStyle::Get().GetWidgetStyle<FComboButtonStyle>("ComboButton"))
		, _ButtonStyle(nullptr)
		, _ButtonContent()
		, _MenuContent()
		, _IsFocusable(true)
		, _HasDownArrow(true)
		, _ForegroundColor(FSlateColor::UseStyle())
		, _ButtonColorAndOpacity(FLinearColor::White)
		, _HAlign(HAlign_Fill)
		, _VAlign(VAlign_Center)
		{
		}
		SLATE_STYLE_ARGUMENT(FComboButtonStyle, ComboButtonStyle)
		/** The visual style of the button (overrides ComboButtonStyle) */
		SLATE_STYLE_ARGUMENT(FButtonStyle, ButtonStyle)
		/** What the button shows. */
		SLATE_NAMED_SLOT(FArguments, ButtonContent)
		/** Optional static menu content.  If the menu content needs to be dynamically built, use the OnGetMenuContent event */
		SLATE_NAMED_SLOT(FArguments, MenuContent)
		/** Sets an event handler to generate a widget dynamically when the menu is needed. */
		SLATE_EVENT(FOnGetContent, OnGetMenuContent)
		SLATE_EVENT(FOnIsOpenChanged, OnMenuOpenChanged)
		/** Called when the combo button is opened */
		SLATE_EVENT(FSimpleDelegate, OnComboBoxOpened)
		SLATE_ARGUMENT(bool, IsFocusable)
		SLATE_ARGUMENT(bool, HasDownArrow)
		/** Foreground color for the button (unset: the style's colour for the button's state) */
		SLATE_ATTRIBUTE(FSlateColor, ForegroundColor)
		/** The color multiplier for the button images */
		SLATE_ATTRIBUTE(FSlateColor, ButtonColorAndOpacity)
		/** Spacing between button's border and the content (unset: the style's) */
		SLATE_ATTRIBUTE(FMargin, ContentPadding)
		SLATE_ARGUMENT(EHorizontalAlignment, HAlign)
		SLATE_ARGUMENT(EVerticalAlignment, VAlign)
		SLATE_END_ARGS()

		SComboButton();
		void Construct(const FArguments& InArgs);

		/** Opens or closes the menu; opening builds its content through OnGetMenuContent. */
		virtual void SetIsOpen(bool InIsOpen, const bool bFocusMenu = true, const int32 FocusUserIndex = 0);
		bool IsOpen() const { return bIsOpen; }

		void SetMenuContent(TSharedRef<SWidget> InMenuContent) { MenuContent = InMenuContent; }
		void SetOnGetMenuContent(FOnGetContent InOnGetMenuContent) { OnGetMenuContent = MoveTemp(InOnGetMenuContent); }

		virtual bool SupportsKeyboardFocus() const override { return bIsFocusable; }
		virtual bool IsInteractable() const override { return IsEnabled(); }

		/** Draws the button's brush, the content, and the down arrow in the button's foreground. */
		virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;
		virtual void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;
		virtual FSlateColor GetForegroundColor() const override;
		virtual FSlateColor GetDisabledForegroundColor() const override;

	protected:
		/** Called when the button is clicked: toggles the menu. */
		virtual FReply OnButtonClicked();

		/** The content beside the arrow, inside the button's padding. */
		virtual FVector2D ComputeDesiredSize(float) const override;

		/** The widget shown in the open menu. */
		TSharedPtr<SWidget> MenuContent;
		FOnGetContent OnGetMenuContent;
		FOnIsOpenChanged OnMenuOpenChanged;
		FSimpleDelegate OnComboBoxOpened;
		bool bIsFocusable;
		bool bIsOpen;

	private:
		/** The space the button's brush and padding take around the content and the arrow. */
		FMargin GetButtonPadding() const;
		/** The size the down arrow takes with its padding; nothing without an arrow. */
		FVector2D GetDownArrowAreaSize() const;

		const FComboButtonStyle* ComboButtonStyle;
		const FButtonStyle* ButtonStyle;
		TAttribute<FMargin> ContentPadding;
		TAttribute<FSlateColor> ForegroundColorOverride;
		TAttribute<FSlateColor> ButtonColorAndOpacity;
		bool bHasDownArrow;
};
