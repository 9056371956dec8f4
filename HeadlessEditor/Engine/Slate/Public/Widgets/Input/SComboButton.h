#pragma once

#include "CoreMinimal.h"
#include "Framework/SlateDelegates.h"
#include "Styling/SlateTypes.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

DECLARE_DELEGATE_OneParam(FOnIsOpenChanged, bool);

/** A button that opens a menu when clicked. */
class SLATE_API SComboButton : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SComboButton)
		: _ComboButtonStyle(&FComboButtonStyle::GetDefault())
		, _ButtonStyle(nullptr)
		, _ButtonContent()
		, _MenuContent()
		, _ContentPadding(FMargin(5.0f))
		, _ForegroundColor(FSlateColor::UseForeground())
		, _HasDownArrow(true)
		, _HAlign(HAlign_Fill)
		, _VAlign(VAlign_Center)
		, _IsFocusable(true)
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
		SLATE_ATTRIBUTE(FMargin, ContentPadding)
		SLATE_ATTRIBUTE(FSlateColor, ForegroundColor)
		SLATE_ARGUMENT(bool, HasDownArrow)
		SLATE_ARGUMENT(EHorizontalAlignment, HAlign)
		SLATE_ARGUMENT(EVerticalAlignment, VAlign)
		SLATE_ARGUMENT(bool, IsFocusable)
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

	protected:
		/** Called when the button is clicked: toggles the menu. */
		virtual FReply OnButtonClicked();

		/** The widget shown in the open menu. */
		TSharedPtr<SWidget> MenuContent;
		FOnGetContent OnGetMenuContent;
		FOnIsOpenChanged OnMenuOpenChanged;
		FSimpleDelegate OnComboBoxOpened;
		bool bIsFocusable;
		bool bIsOpen;
};
