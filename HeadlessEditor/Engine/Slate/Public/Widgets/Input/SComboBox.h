#pragma once

#include "CoreMinimal.h"
#include "Framework/SlateDelegates.h"
#include "Framework/Views/TableViewTypeTraits.h"
#include "Styling/SlateTypes.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/Input/SComboButton.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Views/SListView.h"
#include "Widgets/Views/STableRow.h"

#include <algorithm>

DECLARE_DELEGATE(FOnComboBoxOpening);

/** A row of a combo box's drop-down list. */
template <typename OptionType>
class SComboRow : public STableRow<OptionType>
{
public:
	SLATE_BEGIN_ARGS(SComboRow)
		: _Style(&FAppStyle::Get().GetWidgetStyle<FTableRowStyle>("ComboBox.Row"))
		, _Content()
		, _Padding(FMargin(0))
		{
		}
		SLATE_STYLE_ARGUMENT(FTableRowStyle, Style)
		SLATE_DEFAULT_SLOT(FArguments, Content)
		SLATE_ATTRIBUTE(FMargin, Padding)
		SLATE_END_ARGS()

		void Construct(const FArguments& InArgs, const TSharedRef<STableViewBase>& InOwnerTable)
		{
			STableRow<OptionType>::Construct(typename STableRow<OptionType>::FArguments().Style(InArgs._Style).Padding(InArgs._Padding).Content()[InArgs._Content.Widget], InOwnerTable);
		}
};

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
		, _ComboBoxStyle(&FAppStyle::Get().GetWidgetStyle<FComboBoxStyle>("ComboBox"))
		, _ButtonStyle(nullptr)
		, _ItemStyle(&FAppStyle::Get().GetWidgetStyle<FTableRowStyle>("ComboBox.Row"))
		, _ContentPadding(_ComboBoxStyle->ContentPadding)
		, _ForegroundColor(FSlateColor::UseStyle())
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
			ItemStyle = InArgs._ItemStyle;
			MenuRowPadding = InArgs._ComboBoxStyle->MenuRowPadding;

			// The drop-down shows a list view of the options, as the engine's does.
			TSharedRef<SWidget> ComboBoxMenuContent =
				SNew(SVerticalBox) + SVerticalBox::Slot().MaxHeight(InArgs._MaxListHeight)[SAssignNew(ComboListView, SComboListType).ListItemsSource(InArgs._OptionsSource).OnGenerateRow(this, &SComboBox<OptionType>::GenerateMenuItemRow).OnSelectionChanged(this, &SComboBox<OptionType>::OnSelectionChanged_Internal).SelectionMode(ESelectionMode::Single)];

			SComboButton::Construct(SComboButton::FArguments()
										.ComboButtonStyle(&InArgs._ComboBoxStyle->ComboButtonStyle)
										.ButtonStyle(InArgs._ButtonStyle)
										.ButtonContent()[InArgs._Content.Widget]
										.MenuContent()[ComboBoxMenuContent]
										.ContentPadding(InArgs._ContentPadding)
										.ForegroundColor(InArgs._ForegroundColor)
										.HasDownArrow(InArgs._HasDownArrow)
										.IsFocusable(InArgs._IsFocusable));

			// The initial selection is stored without telling anyone.
			SelectedItem = InArgs._InitiallySelectedItem;
			if (TListTypeTraits<OptionType>::IsPtrValid(SelectedItem))
			{
				ComboListView->Private_SetItemSelection(TListTypeTraits<OptionType>::NullableItemTypeConvertToItemType(SelectedItem), true);
			}
		}

		void ClearSelection() { ComboListView->ClearSelection(); }

		/** Selects an item; OnSelectionChanged fires only if it is not already the selected one. */
		void SetSelectedItem(NullableOptionType InSelectedItem)
		{
			if (TListTypeTraits<OptionType>::IsPtrValid(InSelectedItem))
			{
				ComboListView->SetSelection(TListTypeTraits<OptionType>::NullableItemTypeConvertToItemType(InSelectedItem));
			}
			else
			{
				ComboListView->ClearSelection();
			}
		}

		/** @return the item currently selected by the combo box. */
		NullableOptionType GetSelectedItem() { return SelectedItem; }

		/** Requests a list refresh after updating options. */
		void RefreshOptions() { ComboListView->RequestListRefresh(); }

	protected:
		virtual FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override
		{
			if (this->IsInteractable())
			{
				const FKey Key = InKeyEvent.GetKey();
				if (Key == EKeys::Up || Key == EKeys::Down)
				{
					SelectNeighbour(Key == EKeys::Up ? -1 : 1);
					return FReply::Handled();
				}
				if (Key == EKeys::Enter || Key == EKeys::SpaceBar)
				{
					return OnButtonClicked();
				}
			}
			return SComboButton::OnKeyDown(MyGeometry, InKeyEvent);
		}

		virtual bool SupportsKeyboardFocus() const override { return this->bIsFocusable; }

		virtual bool IsInteractable() const override { return this->IsEnabled(); }

	private:
		typedef SListView<OptionType> SComboListType;

		/** Opening the drop-down tells the owner first; closing it keeps the selection. */
		virtual FReply OnButtonClicked() override
		{
			if (!IsOpen())
			{
				OnComboBoxOpening.ExecuteIfBound();
			}
			return SComboButton::OnButtonClicked();
		}

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
			ComboListView->SetSelection((*OptionsSource)[Next], ESelectInfo::OnKeyPress);
		}

		/** The list row for an option: the widget OnGenerateWidget makes for it. */
		TSharedRef<ITableRow> GenerateMenuItemRow(OptionType InItem, const TSharedRef<STableViewBase>& OwnerTable)
		{
			const TSharedRef<SWidget> Content = OnGenerateWidget.IsBound() ? OnGenerateWidget.Execute(InItem) : SNullWidget::NullWidget;
			return SNew(SComboRow<OptionType>, OwnerTable).Style(ItemStyle).Padding(MenuRowPadding)[Content];
		}

		/** The item style to use. */
		const FTableRowStyle* ItemStyle = nullptr;

		/** The padding around each menu row */
		FMargin MenuRowPadding;

		const TArray<OptionType>* OptionsSource = nullptr;
		NullableOptionType SelectedItem = TListTypeTraits<OptionType>::MakeNullPtr();
		TSharedPtr<SComboListType> ComboListView;
		FOnSelectionChanged OnSelectionChanged;
		FOnGenerateWidget OnGenerateWidget;
		FOnComboBoxOpening OnComboBoxOpening;
};
