#pragma once

#include "CoreMinimal.h"
#include "Styling/CoreStyle.h"
#include "Styling/ISlateStyle.h"
#include "Styling/SlateTypes.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

class SBorder;

/** Delegate that is executed when the check box state changes */
DECLARE_DELEGATE_OneParam(FOnCheckStateChanged, ECheckBoxState);

/**
 * Check box Slate control
 */
class SLATE_API SCheckBox : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SCheckBox)
		: _Content()
		, _Style(&FCoreStyle::Get().GetWidgetStyle<FCheckBoxStyle>("Checkbox"))
		, _Type()
		, _OnCheckStateChanged()
		, _IsChecked(ECheckBoxState::Unchecked)
		, _HAlign(HAlign_Fill)
		, _CheckBoxContentUsesAutoWidth(true)
		, _Padding()
		, _ForegroundColor(FSlateColor::UseStyle())
		, _BorderBackgroundColor()
		, _IsFocusable(true)
		{
		}
		/** Content to be placed next to the check box, or for a toggle button, the content to be placed inside the button */
		SLATE_DEFAULT_SLOT(FArguments, Content)
		/** The style structure for this checkbox' visual style */
		SLATE_STYLE_ARGUMENT(FCheckBoxStyle, Style)
		/** Type of check box (set by the Style arg but the Style can be overridden with this) */
		SLATE_ARGUMENT(TOptional<ESlateCheckBoxType::Type>, Type)
		/** Called when the checked state has changed */
		SLATE_EVENT(FOnCheckStateChanged, OnCheckStateChanged)
		/** Whether the check box is currently in a checked state */
		SLATE_ATTRIBUTE(ECheckBoxState, IsChecked)
		/** How the content of the toggle button should align within the given space */
		SLATE_ARGUMENT(EHorizontalAlignment, HAlign)
		/** Whether or not the content portion of the checkbox should layout using auto-width. When true the content will always be arranged at its desired size as opposed to resizing to the available space. */
		SLATE_ARGUMENT(bool, CheckBoxContentUsesAutoWidth)
		/** Spacing between the check box image and its content (set by the Style arg but the Style can be overridden with this) */
		SLATE_ATTRIBUTE(FMargin, Padding)
		/** Foreground color for the checkbox's content and parts (set by the Style arg but the Style can be overridden with this) */
		SLATE_ATTRIBUTE(FSlateColor, ForegroundColor)
		/** The color of the background border (set by the Style arg but the Style can be overridden with this) */
		SLATE_ATTRIBUTE(FSlateColor, BorderBackgroundColor)
		SLATE_ARGUMENT(bool, IsFocusable)
		SLATE_END_ARGS()

		SCheckBox();

		/**
		 * Construct this widget
		 *
		 * @param	InArgs	The declaration data for this widget
		 */
		void Construct(const FArguments& InArgs);

		// SWidget interface
		virtual bool SupportsKeyboardFocus() const override;
		virtual FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;
		virtual bool IsInteractable() const override;
		virtual FSlateColor GetForegroundColor() const override;
		// End of SWidget interface

		/**
		 * Returns true if the checkbox is currently checked
		 *
		 * @return	True if checked, otherwise false
		 */
		bool IsChecked() const { return (IsCheckboxChecked.Get() == ECheckBoxState::Checked); }

		/** @return The current checked state of the checkbox. */
		ECheckBoxState GetCheckedState() const;

		/**
		 * Toggles the checked state for this check box, fire events as needed
		 */
		void ToggleCheckedState();

		/** See the IsChecked attribute */
		void SetIsChecked(TAttribute<ECheckBoxState> InIsChecked);

		/** See the Content slot */
		void SetContent(const TSharedRef<SWidget>& InContent);

		/** See the Style attribute */
		void SetStyle(const FCheckBoxStyle* InStyle);

	protected:
		/** Rebuilds the checkbox based on the current ESlateCheckBoxType */
		void BuildCheckBox(TSharedRef<SWidget> InContent);

		/** Attribute getter for the padding */
		FMargin OnGetPadding() const;
		/** Attribute getter for the border background color */
		FSlateColor OnGetBorderBackgroundColor() const;
		/** Attribute getter for the checkbox type */
		ESlateCheckBoxType::Type OnGetCheckBoxType() const;

		/**
		 * Gets the check image to display for the current state of the check box
		 * @return	The name of the image to display
		 */
		const FSlateBrush* OnGetCheckImage() const;

		/** Gets the background image for the checkbox */
		const FSlateBrush* OnGetBackgroundImage() const;

	protected:
		/** Style used for the check box */
		const FCheckBoxStyle* Style;

		/** Are we checked */
		TAttribute<ECheckBoxState> IsCheckboxChecked;

		/** Delegate called when the check box changes state */
		FOnCheckStateChanged OnCheckStateChanged;

		/** Overrides padding in the widget style, if set */
		TAttribute<FMargin> PaddingOverride;

		/** Overrides foreground color in the widget style, if set */
		TAttribute<FSlateColor> ForegroundColorOverride;

		/** Overrides border background color in the widget style, if set */
		TAttribute<FSlateColor> BorderBackgroundColorOverride;

		/** Overrides checkbox type in the widget style, if set */
		TOptional<ESlateCheckBoxType::Type> CheckBoxTypeOverride;

		/** Horiz align setting if in togglebox mode */
		EHorizontalAlignment HorizontalAlignment;

		/** True if this checkbox should always use autowidth */
		bool bCheckBoxContentUsesAutoWidth;

		/** When true, this checkbox will be keyboard focusable. Defaults to true. */
		bool bIsFocusable;

	protected:
		/** When in toggle button mode, this will hold the pointer to the toggle button's border */
		TSharedPtr<SBorder> ContentContainer;
};
