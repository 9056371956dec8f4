#include "HeadlessPlacementMode.h"
#include "IPlacementModeModule.h"
#include "SPlacementModeTools.h"
#include "Styling/AppStyle.h"
#include "Widgets/Layout/SBorder.h"

namespace
{
	int32 GStartupCount = 0;

	class FPlacementModeModule final : public IPlacementModeModule
	{
	public:
		virtual void StartupModule() override
		{
			++GStartupCount;
		}

		virtual bool RegisterPlacementCategory(const FPlacementCategoryInfo& Info) override
		{
			if (FindCategory(Info.UniqueHandle))
			{
				return false;
			}
			Categories.Add(FCategory{Info, {}});
			return true;
		}

		virtual const FPlacementCategoryInfo* GetRegisteredPlacementCategory(FName UniqueHandle) const override
		{
			const FCategory* Category = FindCategory(UniqueHandle);
			return Category ? &Category->Info : nullptr;
		}

		virtual void UnregisterPlacementCategory(FName Handle) override
		{
			Categories.RemoveAll([Handle](const FCategory& Category)
				{ return Category.Info.UniqueHandle == Handle; });
		}

		virtual void GetSortedCategories(TArray<FPlacementCategoryInfo>& OutCategories) const override
		{
			OutCategories.Reset();
			for (const FCategory& Category : Categories)
			{
				OutCategories.Add(Category.Info);
			}
			OutCategories.StableSort([](const FPlacementCategoryInfo& A, const FPlacementCategoryInfo& B)
				{ return A.SortOrder < B.SortOrder; });
		}

		virtual TOptional<FPlacementModeID> RegisterPlaceableItem(FName CategoryName, const TSharedRef<FPlaceableItem>& Item) override
		{
			// A category drawn by its own generator takes no items.
			FCategory* Category = FindCategory(CategoryName);
			if (!Category || Category->Info.CustomGenerator)
			{
				return TOptional<FPlacementModeID>();
			}
			FPlacementModeID ID;
			ID.Category = CategoryName;
			ID.UniqueID = ++LastItemID;
			Category->Items.Add(FItem{ID.UniqueID, Item});
			return ID;
		}

		virtual void UnregisterPlaceableItem(FPlacementModeID ID) override
		{
			if (FCategory* Category = FindCategory(ID.Category))
			{
				Category->Items.RemoveAll([&ID](const FItem& Item)
					{ return Item.ID == ID.UniqueID; });
			}
		}

		virtual void GetItemsForCategory(FName CategoryName, TArray<TSharedPtr<FPlaceableItem>>& OutItems) const override
		{
			if (const FCategory* Category = FindCategory(CategoryName))
			{
				for (const FItem& Item : Category->Items)
				{
					OutItems.Add(Item.Item);
				}
			}
		}

	private:
		struct FItem
		{
			int32 ID;
			TSharedPtr<FPlaceableItem> Item;
		};

		struct FCategory
		{
			FPlacementCategoryInfo Info;
			TArray<FItem> Items;
		};

		FCategory* FindCategory(FName Handle)
		{
			return Categories.FindByPredicate([Handle](const FCategory& Category)
				{ return Category.Info.UniqueHandle == Handle; });
		}

		const FCategory* FindCategory(FName Handle) const
		{
			return Categories.FindByPredicate([Handle](const FCategory& Category)
				{ return Category.Info.UniqueHandle == Handle; });
		}

		TArray<FCategory> Categories;
		int32 LastItemID = 0;
	};
}

int32 UE::Headless::GetPlacementModeStartupCount()
{
	return GStartupCount;
}

TSharedRef<SWidget> UE::Headless::MakePlacementPanel(FName ActiveCategory)
{
	const TSharedRef<SPlacementModeTools> Panel = SNew(SPlacementModeTools);
	if (!ActiveCategory.IsNone())
	{
		Panel->SetActiveTab(ActiveCategory);
	}
	// On the content area of the dock tab the panel lives in.
	return SNew(SBorder).Padding(0.0f).BorderImage(&FAppStyle::Get().GetWidgetStyle<FDockTabStyle>("Docking.Tab").ContentAreaBrush)[Panel];
}

IMPLEMENT_MODULE(FPlacementModeModule, PlacementMode)
