#pragma once

#include "CoreMinimal.h"
#include "Styling/CoreStyle.h"
#include "Styling/ISlateStyle.h"
#include "Styling/SlateTypes.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

/** Delegate that is executed when the check box state changes */
DECLARE_DELEGATE_OneParam(FOnCheckStateChanged, ECheckBoxState);

/** A box the user can check and uncheck, with any content beside it. */
class SLATE_API SCheckBox : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SCheckBox)
		: _Content()
		, _Style(&FCoreStyle::Get().GetWidgetStyle<FCheckBoxStyle>("Checkbox"))
		, _IsChecked(ECheckBoxState::Unchecked)
		, _HAlign(HAlign_Fill)
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
		/** Spacing between the check box image and its content (set by the Style arg but the Style can be overridden with this) */
		SLATE_ATTRIBUTE(FMargin, Padding)
		/** Sometimes a button should only be mouse-clickable and never keyboard focusable. */
		SLATE_ARGUMENT(bool, IsFocusable)
		SLATE_END_ARGS()

		SCheckBox();
		void Construct(const FArguments& InArgs);

		virtual bool SupportsKeyboardFocus() const override { return bIsFocusable; }
		virtual FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;
		virtual bool IsInteractable() const override { return IsEnabled(); }

		/** @return true if the checkbox is currently checked */
		bool IsChecked() const { return IsCheckboxChecked.Get() == ECheckBoxState::Checked; }

		/** @return The current checked state of the checkbox. */
		ECheckBoxState GetCheckedState() const { return IsCheckboxChecked.Get(); }

		/** Toggles the checked state for this check box, fire events as needed */
		void ToggleCheckedState();

		/** Sets the checked state; it does not fire OnCheckStateChanged. */
		void SetIsChecked(TAttribute<ECheckBoxState> InIsChecked) { IsCheckboxChecked = MoveTemp(InIsChecked); }

		/** Set the content of the check box. */
		void SetContent(const TSharedRef<SWidget>& InContent) { ChildSlot[InContent]; }

		/** A check box draws its box and mark, then its content beside them; a toggle button draws its state's brush behind the content. */
		virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;
		virtual void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;
		virtual FSlateColor GetForegroundColor() const override;

	protected:
		/** The box beside the content with its padding, as high as the taller of the two. */
		virtual FVector2D ComputeDesiredSize(float) const override;

		/** The mark to draw for the current state: a tick, a bar, or nothing. */
		const FSlateBrush* OnGetCheckImage() const;
		/** The box behind the mark. */
		const FSlateBrush* OnGetBackgroundImage() const;
		/** The padding between the box and the content. */
		FMargin OnGetPadding() const;

	private:
		bool IsToggleButton() const;
		/** The size of the box and its mark, side by side with the content. */
		FVector2D GetCheckImageAreaSize() const;

		const FCheckBoxStyle* Style;
		TOptional<ESlateCheckBoxType::Type> CheckBoxTypeOverride;
		TAttribute<ECheckBoxState> IsCheckboxChecked;
		TAttribute<FMargin> PaddingOverride;
		FOnCheckStateChanged OnCheckStateChanged;
		bool bIsFocusable;
};
