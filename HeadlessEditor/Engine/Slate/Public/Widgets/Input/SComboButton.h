#pragma once

#include "CoreMinimal.h"
#include "Framework/SlateDelegates.h"
#include "Styling/AppStyle.h"
#include "Styling/ISlateStyle.h"
#include "Styling/SlateTypes.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/Input/SMenuAnchor.h"
#include "Widgets/SBoxPanel.h"

DECLARE_DELEGATE(FOnComboBoxOpened)

/**
 * A button that, when clicked, brings up a popup.
 */
class SLATE_API SComboButton : public SMenuAnchor
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
		, _MenuPlacement(MenuPlacement_ComboBox)
		{
		}
		SLATE_STYLE_ARGUMENT(FComboButtonStyle, ComboButtonStyle)
		/** The visual style of the button (overrides ComboButtonStyle) */
		SLATE_STYLE_ARGUMENT(FButtonStyle, ButtonStyle)
		SLATE_NAMED_SLOT(FArguments, ButtonContent)
		/** Optional static menu content.  If the menu content needs to be dynamically built, use the OnGetMenuContent event */
		SLATE_NAMED_SLOT(FArguments, MenuContent)
		/** Sets an event handler to generate a widget dynamically when the menu is needed. */
		SLATE_EVENT(FOnGetContent, OnGetMenuContent)
		SLATE_EVENT(FOnIsOpenChanged, OnMenuOpenChanged)
		/** Called when the combo button is opened */
		SLATE_EVENT(FOnComboBoxOpened, OnComboBoxOpened)
		SLATE_ARGUMENT(bool, IsFocusable)
		SLATE_ARGUMENT(bool, HasDownArrow)
		/** Foreground color for the button (unset: the style's colour for the button's state) */
		SLATE_ATTRIBUTE(FSlateColor, ForegroundColor)
		/** The color multiplier for the button images */
		SLATE_ATTRIBUTE(FSlateColor, ButtonColorAndOpacity)
		/** Spacing between button's border and the content. */
		SLATE_ATTRIBUTE(FMargin, ContentPadding)
		/** Horizontal alignment */
		SLATE_ARGUMENT(EHorizontalAlignment, HAlign)
		/** Vertical alignment */
		SLATE_ARGUMENT(EVerticalAlignment, VAlign)
		/** Where the menu opens relative to the button */
		SLATE_ATTRIBUTE(EMenuPlacement, MenuPlacement)
		SLATE_END_ARGS()

		// SMenuAnchor interface
		virtual void SetMenuContent(TSharedRef<SWidget> InContent) override;
		// End of SMenuAnchor interface

		/** See the OnGetMenuContent event */
		void SetOnGetMenuContent(FOnGetContent InOnGetMenuContent);

		/**
		 * Construct the widget from a declaration
		 *
		 * @param InArgs   Declaration from which to construct the combo box
		 */
		void Construct(const FArguments& InArgs);

	protected:
		/**
		 * Handle the button being clicked by summoning the ComboButton.
		 */
		virtual FReply OnButtonClicked();

	protected:
		/** Area where the button's content resides */
		SHorizontalBox::FSlot* ButtonContentSlot;

		/** Delegate to execute when the combo list is opened */
		FOnComboBoxOpened OnComboBoxOpened;

		/** Brush to use to add a "menu border" around the drop-down content */
		const FSlateBrush* MenuBorderBrush;

		/** Padding to use to add a "menu border" around the drop-down content */
		FMargin MenuBorderPadding;

		/** The content widget, if any, set by the user on creation */
		TWeakPtr<SWidget> ContentWidgetPtr;

		/** Can this button be focused? */
		bool bIsFocusable;
};
