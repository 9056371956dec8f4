#pragma once

#include "CoreMinimal.h"
#include "Framework/SlateDelegates.h"
#include "Framework/Views/ITypedTableView.h"
#include "Framework/Views/TableViewTypeTraits.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Views/ITableRow.h"
#include "Widgets/Views/STableViewBase.h"

/** A list of rows, one per item of an array it watches; the user selects items by their rows. */
template <typename ItemType>
class SListView : public STableViewBase
{
public:
	typedef typename TListTypeTraits<ItemType>::NullableType NullableItemType;
	typedef typename TSlateDelegates<ItemType>::FOnGenerateRow FOnGenerateRow;
	typedef typename TSlateDelegates<NullableItemType>::FOnSelectionChanged FOnSelectionChanged;

	SLATE_BEGIN_ARGS(SListView<ItemType>)
		: _OnGenerateRow()
		, _ListItemsSource()
		, _OnSelectionChanged()
		, _SelectionMode(ESelectionMode::Multi)
		{
		}
		SLATE_EVENT(FOnGenerateRow, OnGenerateRow)
		SLATE_ARGUMENT(const TArray<ItemType>*, ListItemsSource)
		SLATE_EVENT(FOnSelectionChanged, OnSelectionChanged)
		SLATE_ATTRIBUTE(ESelectionMode::Type, SelectionMode)
		SLATE_END_ARGS()

		void Construct(const FArguments& InArgs)
		{
			OnGenerateRow = InArgs._OnGenerateRow;
			ItemsSource = InArgs._ListItemsSource;
			OnSelectionChanged = InArgs._OnSelectionChanged;
			SelectionMode = InArgs._SelectionMode;
			checkf(ItemsSource && OnGenerateRow.IsBound(), TEXT("A list view needs a ListItemsSource and an OnGenerateRow"));
			ChildSlot[SAssignNew(RowsPanel, SVerticalBox)];
		}

		/** Makes this the only selected item and tells the owner, whatever the item was before. */
		void SetSelection(ItemType SoleSelectedItem, ESelectInfo::Type SelectInfo = ESelectInfo::Direct)
		{
			if (SelectionMode.Get() == ESelectionMode::None)
			{
				return;
			}
			SelectedItems.Reset();
			SelectedItems.Add(SoleSelectedItem);
			OnSelectionChanged.ExecuteIfBound(SoleSelectedItem, SelectInfo);
		}

		void ClearSelection()
		{
			if (SelectedItems.Num() == 0)
			{
				return;
			}
			SelectedItems.Reset();
			OnSelectionChanged.ExecuteIfBound(TListTypeTraits<ItemType>::MakeNullPtr(), ESelectInfo::Direct);
		}

		TArray<ItemType> GetSelectedItems() const { return SelectedItems; }

		bool IsItemSelected(const ItemType& InItem) const { return SelectedItems.Contains(InItem); }

		/** Selects the item without telling the owner, as the owner's own initial selection. */
		void Private_SetItemSelection(ItemType TheItem, bool bShouldBeSelected, bool bWasUserDirected = false)
		{
			SelectedItems.Remove(TheItem);
			if (bShouldBeSelected)
			{
				SelectedItems.Add(TheItem);
			}
		}

		virtual FChildren* GetChildren() override
		{
			// Rows follow the items the view watches, as the engine's view regenerates them each frame.
			if (RowsAreStale())
			{
				RebuildRows();
			}
			return SCompoundWidget::GetChildren();
		}

	protected:
		/** The items to show; the list does not own them. */
		const TArray<ItemType>* ItemsSource = nullptr;

	private:
		bool RowsAreStale() const
		{
			if (GeneratedItems.Num() != ItemsSource->Num())
			{
				return true;
			}
			for (int32 Index = 0; Index < GeneratedItems.Num(); ++Index)
			{
				if (!(GeneratedItems[Index] == (*ItemsSource)[Index]))
				{
					return true;
				}
			}
			return false;
		}

		virtual void RebuildRows() override
		{
			RowsPanel->ClearChildren();
			GeneratedItems = *ItemsSource;
			const TSharedRef<STableViewBase> Self = SharedThis(this);
			for (const ItemType& Item : GeneratedItems)
			{
				RowsPanel->AddSlot().AutoHeight()[OnGenerateRow.Execute(Item, Self)->AsWidget()];
			}
		}

		FOnGenerateRow OnGenerateRow;
		FOnSelectionChanged OnSelectionChanged;
		TAttribute<ESelectionMode::Type> SelectionMode;
		TArray<ItemType> SelectedItems;
		TArray<ItemType> GeneratedItems;
		TSharedPtr<SVerticalBox> RowsPanel;
};
