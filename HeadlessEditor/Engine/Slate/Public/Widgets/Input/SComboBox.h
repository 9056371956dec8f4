#pragma once

#include "CoreMinimal.h"
#include "Framework/SlateDelegates.h"
#include "Framework/Views/TableViewTypeTraits.h"
#include "Styling/SlateTypes.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/Input/SComboButton.h"

#include <algorithm>

DECLARE_DELEGATE(FOnComboBoxOpening)

/** A drop-down list of options: the button shows the content slot, the list shows a row per option. */
template <typename OptionType>
class SComboBox : public SComboButton
{
public:
	/** Type of list used for showing menu options. */
	typedef typename TListTypeTraits<OptionType>::NullableType NullableOptionType;
	/** Delegate type used to generate widgets that represent Options */
	typedef typename TSlateDelegates<OptionType>::FOnGenerateWidget FOnGenerateWidget;
	typedef typename TSlateDelegates<NullableOptionType>::FOnSelectionChanged FOnSelectionChanged;

	SLATE_BEGIN_ARGS(SComboBox)
		: _Content()
		, _ComboBoxStyle(&FComboBoxStyle::GetDefault())
		, _ButtonStyle(nullptr)
		, _ItemStyle(&FTableRowStyle::GetDefault())
		, _ContentPadding(FMargin(4.0f, 2.0f))
		, _ForegroundColor(FSlateColor::UseForeground())
		, _OptionsSource(nullptr)
		, _OnSelectionChanged()
		, _OnGenerateWidget()
		, _InitiallySelectedItem(TListTypeTraits<OptionType>::MakeNullPtr())
		, _MaxListHeight(450.0f)
		, _HasDownArrow(true)
		, _IsFocusable(true)
		{
		}
		/** Slot for this button's content (optional) */
		SLATE_DEFAULT_SLOT(FArguments, Content)
		SLATE_STYLE_ARGUMENT(FComboBoxStyle, ComboBoxStyle)
		/** The visual style of the button part of the combo box (overrides ComboBoxStyle) */
		SLATE_STYLE_ARGUMENT(FButtonStyle, ButtonStyle)
		SLATE_STYLE_ARGUMENT(FTableRowStyle, ItemStyle)
		SLATE_ATTRIBUTE(FMargin, ContentPadding)
		SLATE_ATTRIBUTE(FSlateColor, ForegroundColor)
		SLATE_ARGUMENT(const TArray<OptionType>*, OptionsSource)
		SLATE_EVENT(FOnSelectionChanged, OnSelectionChanged)
		SLATE_EVENT(FOnGenerateWidget, OnGenerateWidget)
		/** Called when combo box is opened, before list is actually created */
		SLATE_EVENT(FOnComboBoxOpening, OnComboBoxOpening)
		/** The option that should be selected when the combo box is first created */
		SLATE_ARGUMENT(NullableOptionType, InitiallySelectedItem)
		/** The max height of the combo box menu */
		SLATE_ARGUMENT(float, MaxListHeight)
		/** When false, the down arrow is not generated and it is up to the API consumer to make their own visual hint that this is a drop down. */
		SLATE_ARGUMENT(bool, HasDownArrow)
		/** When false, directional keys will change the selection. When true, ComboBox must be activated and will only capture arrow input while activated. */
		SLATE_ARGUMENT(bool, IsFocusable)
		SLATE_END_ARGS()

		void Construct(const FArguments& InArgs)
		{
			check(InArgs._OptionsSource);
			OptionsSource = InArgs._OptionsSource;
			OnSelectionChanged = InArgs._OnSelectionChanged;
			OnGenerateWidget = InArgs._OnGenerateWidget;
			OnComboBoxOpening = InArgs._OnComboBoxOpening;
			MaxListHeight = InArgs._MaxListHeight;

			SComboButton::Construct(SComboButton::FArguments()
										.ButtonContent()[InArgs._Content.Widget]
										.ContentPadding(InArgs._ContentPadding)
										.ForegroundColor(InArgs._ForegroundColor)
										.HasDownArrow(InArgs._HasDownArrow)
										.IsFocusable(InArgs._IsFocusable));

			// The initial selection is stored without telling anyone.
			SelectedItem = InArgs._InitiallySelectedItem;
		}

		void ClearSelection()
		{
			if (TListTypeTraits<OptionType>::IsPtrValid(SelectedItem))
			{
				OnSelectionChanged_Internal(TListTypeTraits<OptionType>::MakeNullPtr(), ESelectInfo::Direct);
			}
		}

		/** Selects an item; OnSelectionChanged fires only if it is not already the selected one. */
		void SetSelectedItem(NullableOptionType InSelectedItem)
		{
			if (TListTypeTraits<OptionType>::IsPtrValid(InSelectedItem))
			{
				OnSelectionChanged_Internal(InSelectedItem, ESelectInfo::Direct);
			}
			else
			{
				ClearSelection();
			}
		}

		/** @return the item currently selected by the combo box. */
		NullableOptionType GetSelectedItem() { return SelectedItem; }

		/** Requests a list refresh after updating options. */
		void RefreshOptions() {}

		virtual FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override
		{
			if (IsInteractable())
			{
				const FKey Key = InKeyEvent.GetKey();
				if (Key == EKeys::Up || Key == EKeys::Down)
				{
					SelectNeighbour(Key == EKeys::Up ? -1 : 1);
					return FReply::Handled();
				}
				if (Key == EKeys::Enter || Key == EKeys::SpaceBar)
				{
					OnComboBoxOpening.ExecuteIfBound();
					return OnButtonClicked();
				}
			}
			return SComboButton::OnKeyDown(MyGeometry, InKeyEvent);
		}

	private:
		// The headless test driver picks options and builds the option rows as the open list would.
		friend class FWidgetDriver;

		/** A row of the list was chosen, or the selection was set. */
		void OnSelectionChanged_Internal(NullableOptionType ProposedSelection, ESelectInfo::Type SelectInfo)
		{
			if (SelectInfo != ESelectInfo::OnNavigation)
			{
				if (ProposedSelection != SelectedItem)
				{
					SelectedItem = ProposedSelection;
					OnSelectionChanged.ExecuteIfBound(ProposedSelection, SelectInfo);
				}
				this->SetIsOpen(false);
			}
		}

		/** The up and down keys move the selection along the options. */
		void SelectNeighbour(int32 Step)
		{
			if (OptionsSource->Num() == 0)
			{
				return;
			}
			const int32 Current = OptionsSource->Find(SelectedItem);
			const int32 Next = Current == INDEX_NONE ? 0 : std::min(std::max(Current + Step, 0), OptionsSource->Num() - 1);
			OnSelectionChanged_Internal((*OptionsSource)[Next], ESelectInfo::OnKeyPress);
		}

		/** The row widget for an option, as the list shows it. */
		TSharedRef<SWidget> GenerateMenuItemRow(OptionType InItem) { return OnGenerateWidget.IsBound() ? OnGenerateWidget.Execute(InItem) : SNullWidget::NullWidget; }

		const TArray<OptionType>* OptionsSource = nullptr;
		NullableOptionType SelectedItem = TListTypeTraits<OptionType>::MakeNullPtr();
		FOnSelectionChanged OnSelectionChanged;
		FOnGenerateWidget OnGenerateWidget;
		FOnComboBoxOpening OnComboBoxOpening;
		float MaxListHeight = 450.0f;
};
