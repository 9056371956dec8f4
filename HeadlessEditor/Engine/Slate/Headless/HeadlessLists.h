#pragma once

#include "CoreMinimal.h"
#include "Widgets/Input/SComboButton.h"
#include "Widgets/Views/SListView.h"

/** Headless editor only: what an open drop-down shows, which the engine draws in a pop-up window. */
namespace UE::Headless
{
	/** What a combo button's drop-down shows when it opens. */
	SLATE_API TSharedPtr<SWidget> GetMenuContent(const SComboButton& ComboButton);

	/** Reaches a list view's protected item source, as a derived class may. */
	template <typename ItemType>
	struct TListViewAccess : SListView<ItemType>
	{
		static const TArray<ItemType>* GetItemsSource(const SListView<ItemType>& ListView) { return ListView.*(&TListViewAccess::ItemsSource); }
	};

	/** The array of items a list view shows, as given to it. */
	template <typename ItemType>
	const TArray<ItemType>& GetListItems(const SListView<ItemType>& ListView)
	{
		return *TListViewAccess<ItemType>::GetItemsSource(ListView);
	}
}
