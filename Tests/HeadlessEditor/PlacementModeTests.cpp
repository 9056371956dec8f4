#include "AssetRegistry/AssetData.h"
#include "IPlacementModeModule.h"
#include "KyroViewportCapture.h"
#include "Modules/ModuleManager.h"
#include "Templates/Casts.h"
#include "UObject/UObjectGlobals.h"
#include "Widgets/SNullWidget.h"

#include <gtest/gtest.h>

#define LOCTEXT_NAMESPACE "PlacementMode"

namespace
{
	const FName PlacementModeModuleName(TEXT("PlacementMode"));
	const FName ProbeHandle(TEXT("PlacementProbe"));

	class PlacementMode : public ::testing::Test
	{
	protected:
		virtual void TearDown() override { FModuleManager::Get().UnloadModule(PlacementModeModuleName); }

		static FPlacementCategoryInfo MakeCategory(FName Handle, const FText& Name, int32 SortOrder = 0) { return FPlacementCategoryInfo(Name, Handle, TEXT("PMProbe"), SortOrder); }

		static TSharedRef<FPlaceableItem> MakeClassItem() { return MakeShareable(new FPlaceableItem(nullptr, FAssetData(AKyroViewportCapture::StaticClass()))); }

		static int32 CountItems(FName Handle)
		{
			TArray<TSharedPtr<FPlaceableItem>> Items;
			IPlacementModeModule::Get().GetItemsForCategory(Handle, Items);
			return Items.Num();
		}
	};

	TEST_F(PlacementMode, GetLoadsTheModuleWhileIsAvailableOnlyAsks)
	{
		EXPECT_FALSE(IPlacementModeModule::IsAvailable());
		EXPECT_FALSE(FModuleManager::Get().IsModuleLoaded(PlacementModeModuleName));

		IPlacementModeModule& Module = IPlacementModeModule::Get();

		EXPECT_TRUE(IPlacementModeModule::IsAvailable());
		EXPECT_EQ(&IPlacementModeModule::Get(), &Module);
	}

	TEST_F(PlacementMode, ADuplicateHandleIsRefusedAndTheFirstRecordKept)
	{
		IPlacementModeModule& Module = IPlacementModeModule::Get();

		EXPECT_TRUE(Module.RegisterPlacementCategory(MakeCategory(ProbeHandle, LOCTEXT("First", "First"), 10)));
		EXPECT_FALSE(Module.RegisterPlacementCategory(MakeCategory(ProbeHandle, LOCTEXT("Second", "Second"), 20)));

		const FPlacementCategoryInfo* Info = Module.GetRegisteredPlacementCategory(ProbeHandle);
		ASSERT_NE(Info, nullptr);
		EXPECT_EQ(Info->DisplayName.ToString(), TEXT("First"));
		EXPECT_EQ(Info->SortOrder, 10);
		EXPECT_EQ(Module.GetRegisteredPlacementCategory(TEXT("NoSuchCategory")), nullptr);
	}

	TEST_F(PlacementMode, UnregisteringACategoryRemovesItsItems)
	{
		IPlacementModeModule& Module = IPlacementModeModule::Get();
		Module.RegisterPlacementCategory(MakeCategory(ProbeHandle, LOCTEXT("Probe", "Probe")));
		Module.RegisterPlaceableItem(ProbeHandle, MakeClassItem());
		ASSERT_EQ(CountItems(ProbeHandle), 1);

		Module.UnregisterPlacementCategory(ProbeHandle);
		EXPECT_EQ(Module.GetRegisteredPlacementCategory(ProbeHandle), nullptr);
		EXPECT_EQ(CountItems(ProbeHandle), 0);

		Module.RegisterPlacementCategory(MakeCategory(ProbeHandle, LOCTEXT("Probe", "Probe")));
		EXPECT_EQ(CountItems(ProbeHandle), 0) << "A category registered again starts empty";
	}

	TEST_F(PlacementMode, ItemsNeedAnExistingCategoryWithoutItsOwnGenerator)
	{
		IPlacementModeModule& Module = IPlacementModeModule::Get();
		EXPECT_FALSE(Module.RegisterPlaceableItem(ProbeHandle, MakeClassItem()).IsSet());

		FPlacementCategoryInfo Custom = MakeCategory(TEXT("CustomProbe"), LOCTEXT("Custom", "Custom"));
		Custom.CustomGenerator = []() -> TSharedRef<SWidget>
		{ return SNullWidget::NullWidget; };
		Module.RegisterPlacementCategory(Custom);
		EXPECT_FALSE(Module.RegisterPlaceableItem(TEXT("CustomProbe"), MakeClassItem()).IsSet());

		Module.RegisterPlacementCategory(MakeCategory(ProbeHandle, LOCTEXT("Probe", "Probe")));
		const TOptional<FPlacementModeID> ID = Module.RegisterPlaceableItem(ProbeHandle, MakeClassItem());
		ASSERT_TRUE(ID.IsSet());
		EXPECT_EQ(ID->Category, ProbeHandle);
	}

	TEST_F(PlacementMode, UnregisterPlaceableItemRemovesOnlyThatItem)
	{
		IPlacementModeModule& Module = IPlacementModeModule::Get();
		Module.RegisterPlacementCategory(MakeCategory(ProbeHandle, LOCTEXT("Probe", "Probe")));
		const TOptional<FPlacementModeID> First = Module.RegisterPlaceableItem(ProbeHandle, MakeClassItem());
		const TOptional<FPlacementModeID> Second = Module.RegisterPlaceableItem(ProbeHandle, MakeClassItem());
		ASSERT_TRUE(First.IsSet() && Second.IsSet());
		EXPECT_NE(First->UniqueID, Second->UniqueID);

		Module.UnregisterPlaceableItem(First.GetValue());

		EXPECT_EQ(CountItems(ProbeHandle), 1);
	}

	TEST_F(PlacementMode, GetItemsForCategoryAppendsToWhatTheArrayHolds)
	{
		IPlacementModeModule& Module = IPlacementModeModule::Get();
		Module.RegisterPlacementCategory(MakeCategory(ProbeHandle, LOCTEXT("Probe", "Probe")));
		Module.RegisterPlaceableItem(ProbeHandle, MakeClassItem());

		TArray<TSharedPtr<FPlaceableItem>> Items;
		Module.GetItemsForCategory(ProbeHandle, Items);
		Module.GetItemsForCategory(ProbeHandle, Items);

		EXPECT_EQ(Items.Num(), 2);
	}

	TEST_F(PlacementMode, SortedCategoriesFollowTheirSortOrder)
	{
		IPlacementModeModule& Module = IPlacementModeModule::Get();
		Module.RegisterPlacementCategory(MakeCategory(TEXT("Late"), LOCTEXT("Late", "Late"), 50));
		Module.RegisterPlacementCategory(MakeCategory(TEXT("Early"), LOCTEXT("Early", "Early"), 5));
		Module.RegisterPlacementCategory(MakeCategory(TEXT("Middle"), LOCTEXT("Middle", "Middle"), 25));

		TArray<FPlacementCategoryInfo> Sorted;
		Module.GetSortedCategories(Sorted);

		TArray<FName> Handles;
		for (const FPlacementCategoryInfo& Info : Sorted)
		{
			Handles.Add(Info.UniqueHandle);
		}
		EXPECT_EQ(Handles, TArray<FName>({TEXT("Early"), TEXT("Middle"), TEXT("Late")}));
	}

	TEST_F(PlacementMode, AClassAssetNamesTheItemAfterTheClass)
	{
		UClass* Class = AKyroViewportCapture::StaticClass();
		const FAssetData AssetData(Class);

		EXPECT_TRUE(AssetData.PackageName.ToString().Equals(TEXT("/Script/KyroCamera")));
		EXPECT_TRUE(AssetData.AssetName.ToString().Equals(TEXT("KyroViewportCapture")));
		EXPECT_TRUE(AssetData.AssetClassPath.ToString().Equals(TEXT("/Script/CoreUObject.Class")));
		EXPECT_EQ(AssetData.GetAsset(), Class);
		EXPECT_EQ(AssetData.GetClass(), UClass::StaticClass());

		const FPlaceableItem Item(nullptr, AssetData);
		EXPECT_EQ(Item.Factory, nullptr);
		EXPECT_TRUE(Item.NativeName.Equals(TEXT("KyroViewportCapture")));
		EXPECT_TRUE(Item.DisplayName.ToString().Equals(Class->GetDisplayNameText().ToString()));
		EXPECT_TRUE(Item.DisplayName.ToString().Equals(TEXT("Kyro Viewport Capture")));
	}

	TEST_F(PlacementMode, ClassObjectsShareTheOneClassOfClasses)
	{
		UClass* ClassOfClasses = UClass::StaticClass();

		EXPECT_EQ(ClassOfClasses->GetClass(), ClassOfClasses);
		EXPECT_EQ(UObject::StaticClass()->GetClass(), ClassOfClasses);
		EXPECT_EQ(AKyroViewportCapture::StaticClass()->GetClass(), ClassOfClasses);
		EXPECT_EQ(Cast<UClass>(UObject::StaticClass()), UObject::StaticClass());
		EXPECT_EQ(StaticFindObject(UClass::StaticClass(), nullptr, TEXT("/Script/CoreUObject.Class")), ClassOfClasses);
	}

	TEST_F(PlacementMode, AnInvalidAssetLeavesTheItemUnnamed)
	{
		const FPlaceableItem Item(nullptr, FAssetData());

		EXPECT_TRUE(Item.NativeName.Equals(TEXT("None")));
		EXPECT_FALSE(Item.SortOrder.IsSet());
	}
}

#undef LOCTEXT_NAMESPACE
