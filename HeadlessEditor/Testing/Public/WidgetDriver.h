#pragma once

#include "CoreMinimal.h"
#include "Framework/Text/TextLayout.h"
#include "Layout/SlateRect.h"
#include "Rendering/RenderingCommon.h"
#include "HeadlessLists.h"
#include "InputCoreTypes.h"
#include "Styling/SlateTypes.h"
#include "Types/SlateEnums.h"
#include "Widgets/Input/SComboBox.h"
#include "Widgets/SWidget.h"
#include "Widgets/Views/SListView.h"

class SButton;
class SCheckBox;
class SEditableTextBox;
class STextBlock;

/**
 * Drives widget trees as a user would, where the engine would need a real window: finds widgets by
 * type and text, reads what they show, and clicks, ticks, types, presses keys and picks combo items.
 */
class HEADLESSTESTING_API FWidgetDriver
{
public:
	/** The non-null children of a widget, in slot order. */
	static TArray<TSharedRef<SWidget>> GetChildWidgets(const TSharedRef<SWidget>& Widget);

	/**
	 * Every widget under Root (Root included), depth first in tree order, whose type is TypeName
	 * (an empty name matches any type; "SComboBox" matches every SComboBox<...>) and, if Text is
	 * given, whose displayed text equals it exactly.
	 */
	static TArray<TSharedRef<SWidget>> FindAllWidgets(const TSharedRef<SWidget>& Root, const FString& TypeName, const TOptional<FString>& Text = TOptional<FString>());

	/** The first widget FindAllWidgets would return, or nullptr. */
	static TSharedPtr<SWidget> FindWidget(const TSharedRef<SWidget>& Root, const FString& TypeName, const TOptional<FString>& Text = TOptional<FString>());

	/** FindWidget cast to the widget class named by TypeName. */
	template <typename WidgetType>
	static TSharedPtr<WidgetType> Find(const TSharedRef<SWidget>& Root, const FString& TypeName, const TOptional<FString>& Text = TOptional<FString>())
	{
		const TSharedPtr<SWidget> Found = FindWidget(Root, TypeName, Text);
		return Found.IsValid() ? TSharedPtr<WidgetType>(StaticCastSharedRef<WidgetType>(Found.ToSharedRef())) : TSharedPtr<WidgetType>();
	}

	/**
	 * The text a widget shows: its own for a text block or editable text box; for any other widget,
	 * that of the first text block inside it (a button's label, a check box's caption).
	 */
	static TOptional<FString> GetDisplayedText(const TSharedRef<SWidget>& Widget);

	/** Whether the widget and all its ancestors are visible. */
	static bool IsShown(const TSharedRef<SWidget>& Widget);
	/** Whether the widget and all its ancestors are enabled. */
	static bool IsEffectivelyEnabled(const TSharedRef<SWidget>& Widget);

	/** A line of text a widget paints. */
	struct FPaintedText
	{
		FString Text;
		FSlateFontInfo Font;
		/** The colour the text is drawn in. */
		FLinearColor Color;
		/** Where the line's box is, in the window the widget is painted in. */
		FSlateRect Rect;
		ESlateDrawEffect Effects;
	};

	/**
	 * The lines of text a widget paints, as it is painted in its window: the root of its tree is laid
	 * out at its desired size and painted, and the text inside the widget's painted area is read.
	 */
	static TArray<FPaintedText> GetPaintedText(const TSharedRef<SWidget>& Widget);

	/** The font a text block draws its text in; the block must show some text. */
	static FSlateFontInfo GetFont(const STextBlock& TextBlock);
	/** The colour a text block draws its text in; the block must show some text. */
	static FSlateColor GetColor(const STextBlock& TextBlock);

	/** Clicks a button as a user would: only a shown, enabled button can be clicked. @return whether it was. */
	static bool Click(const TSharedRef<SButton>& Button);
	/** Clicks a check box as a user would (fires OnCheckStateChanged). @return whether it was clicked. */
	static bool ToggleCheckBox(const TSharedRef<SCheckBox>& CheckBox);
	/**
	 * Types a whole text into a box as a user does: focuses it, selects what it holds, types each
	 * character (OnTextChanged for each), then commits: Enter for OnEnter, leaving the box otherwise.
	 */
	static bool TypeText(const TSharedRef<SEditableTextBox>& TextBox, const FText& Text, ETextCommit::Type CommitType = ETextCommit::OnEnter);
	/**
	 * Focuses the widget and sends a key press through the application, which bubbles it up the
	 * parents. The widget must support keyboard focus. @return whether a widget handled it.
	 */
	static bool PressKey(const TSharedRef<SWidget>& Widget, const FKey& Key);

	/**
	 * Opens a combo box and clicks the row of an option in its drop-down list, as a user picks an
	 * option. @return whether the combo could be used.
	 */
	template <typename OptionType>
	static bool PickComboItem(const TSharedRef<SComboBox<OptionType>>& ComboBox, const OptionType& Item)
	{
		if (!IsShown(ComboBox) || !IsEffectivelyEnabled(ComboBox))
		{
			return false;
		}
		const TSharedRef<SListView<OptionType>> List = GetComboList(ComboBox);
		checkf(UE::Headless::GetListItems(*List).Contains(Item), TEXT("The item is not one of the combo box's options"));
		ComboBox->SetIsOpen(true);
		List->SetSelection(Item, ESelectInfo::OnMouseClick);
		return true;
	}

	/** The rows the combo box's drop-down lists, one per option, as it shows them when open. */
	template <typename OptionType>
	static TArray<TSharedRef<SWidget>> GenerateComboRows(const TSharedRef<SComboBox<OptionType>>& ComboBox)
	{
		const bool bWasOpen = ComboBox->IsOpen();
		ComboBox->SetIsOpen(true);
		const TArray<TSharedRef<SWidget>> Rows = GetChildWidgets(GetChildWidgets(GetComboList(ComboBox))[0]);
		ComboBox->SetIsOpen(bWasOpen);
		return Rows;
	}

	/** The options a combo box's drop-down lists. */
	template <typename OptionType>
	static const TArray<OptionType>& GetComboOptions(const TSharedRef<SComboBox<OptionType>>& ComboBox)
	{
		return UE::Headless::GetListItems(*GetComboList(ComboBox));
	}

private:
	/** The list view of a combo box's drop-down. */
	template <typename OptionType>
	static TSharedRef<SListView<OptionType>> GetComboList(const TSharedRef<SComboBox<OptionType>>& ComboBox)
	{
		const TSharedPtr<SWidget> Menu = UE::Headless::GetMenuContent(*ComboBox);
		checkf(Menu.IsValid(), TEXT("The combo box has no drop-down"));
		const TSharedPtr<SWidget> List = FindWidget(Menu.ToSharedRef(), TEXT("SComboListType"));
		checkf(List.IsValid(), TEXT("The combo box's drop-down has no list"));
		return StaticCastSharedRef<SListView<OptionType>>(List.ToSharedRef());
	}
};
