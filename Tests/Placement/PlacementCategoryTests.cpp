#include "HeadlessPlacementMode.h"
#include "HeadlessEditorSession.h"
#include "IPlacementModeModule.h"
#include "Internationalization/Internationalization.h"
#include "Modules/ModuleManager.h"

#include <gtest/gtest.h>

namespace
{
	const FName CategoryHandle(TEXT("Nimbrel"));

	TArray<FString> GetItemClassNames()
	{
		TArray<TSharedPtr<FPlaceableItem>> Items;
		IPlacementModeModule::Get().GetItemsForCategory(CategoryHandle, Items);
		TArray<FString> Names;
		for (const TSharedPtr<FPlaceableItem>& Item : Items)
		{
			Names.Add(Item->AssetData.AssetName.ToString());
		}
		return Names;
	}

	const TArray<FString> AlwaysPlaced{
		TEXT("KyroCineCamCapture"),
		TEXT("KyroSpoutSenderManager"),
		TEXT("KyroSpoutReceiverManager"),
		TEXT("Kyro360CamCapture"),
		TEXT("KyroViewportCapture"),
		TEXT("KyroMediaOutput"),
		TEXT("KyroScreenCapture"),
		TEXT("KyroVirtualWebcamOutput"),
	};
}

TEST(PlacementCategory, CategoryIsRegisteredWithItsRecord)
{
	FHeadlessEditorSession Session;

	const FPlacementCategoryInfo* Info = IPlacementModeModule::Get().GetRegisteredPlacementCategory(CategoryHandle);
	ASSERT_NE(Info, nullptr);
	EXPECT_EQ(Info->DisplayName.ToString(), TEXT("Nimbrel"));
	EXPECT_EQ(FTextInspector::GetNamespace(Info->DisplayName).Get(TEXT("")), TEXT("PlacementMode"));
	EXPECT_TRUE(FTextInspector::GetKey(Info->DisplayName).Get(TEXT("")).Equals(TEXT("NimbrelCategoryName")));
	EXPECT_EQ(Info->DisplayIcon.GetStyleSetName(), FName(TEXT("CastellanEditorStyle")));
	EXPECT_EQ(Info->DisplayIcon.GetStyleName(), FName(TEXT("KyroCastellan.PluginTaskbarIcon")));
	EXPECT_TRUE(Info->TagMetaData.Equals(TEXT("PMNimbrel")));
	EXPECT_EQ(Info->SortOrder, 25);
	EXPECT_TRUE(Info->bSortable);
}

TEST(PlacementCategory, TenClassesWithTheNDIModule)
{
	FHeadlessEditorSession Session;

	TArray<FString> Expected = AlwaysPlaced;
	Expected.Append({TEXT("KyroNDISenderManager"), TEXT("KyroNDIReceiverManager")});
	EXPECT_EQ(GetItemClassNames(), Expected);

	TArray<TSharedPtr<FPlaceableItem>> Items;
	IPlacementModeModule::Get().GetItemsForCategory(CategoryHandle, Items);
	for (const TSharedPtr<FPlaceableItem>& Item : Items)
	{
		EXPECT_EQ(Item->Factory, nullptr);
		EXPECT_FALSE(Item->SortOrder.IsSet());
		EXPECT_NE(Item->AssetData.GetAsset(), nullptr) << *Item->NativeName;
	}
	EXPECT_TRUE(Items[0]->AssetData.PackageName.ToString().Equals(TEXT("/Script/KyroCamera")));
}

TEST(PlacementCategory, EightClassesWithoutTheNDIModule)
{
	FHeadlessEditorOptions Options;
	Options.bKyroNDILoaded = false;
	FHeadlessEditorSession Session(Options);

	EXPECT_EQ(GetItemClassNames(), AlwaysPlaced);
}

TEST(PlacementCategory, ExistingCategoryKeepsItsRecordAndReceivesTheItems)
{
	FHeadlessEditorOptions Options;
	Options.bStartEditorModule = false;
	FHeadlessEditorSession Session(Options);
	const FPlacementCategoryInfo Earlier(FText::FromString(TEXT("Earlier")), CategoryHandle, TEXT("PMEarlier"), 7, false);
	ASSERT_TRUE(IPlacementModeModule::Get().RegisterPlacementCategory(Earlier));

	Session.StartEditorModule();

	const FPlacementCategoryInfo* Info = IPlacementModeModule::Get().GetRegisteredPlacementCategory(CategoryHandle);
	ASSERT_NE(Info, nullptr);
	EXPECT_EQ(Info->DisplayName.ToString(), TEXT("Earlier"));
	EXPECT_TRUE(Info->TagMetaData.Equals(TEXT("PMEarlier")));
	EXPECT_EQ(Info->SortOrder, 7);
	EXPECT_FALSE(Info->bSortable);
	EXPECT_EQ(GetItemClassNames().Num(), 10);
}

TEST(PlacementCategory, ShutdownRemovesTheCategoryAndItsItems)
{
	FHeadlessEditorSession Session;
	Session.ShutdownEditorModule();

	EXPECT_EQ(IPlacementModeModule::Get().GetRegisteredPlacementCategory(CategoryHandle), nullptr);
	EXPECT_TRUE(GetItemClassNames().IsEmpty());
}

TEST(PlacementCategory, ShutdownWithoutThePlacementModeDoesNotLoadIt)
{
	FHeadlessEditorSession Session;
	ASSERT_TRUE(FModuleManager::Get().UnloadModule(TEXT("PlacementMode")));
	const int32 StartupsBefore = UE::Headless::GetPlacementModeStartupCount();

	Session.ShutdownEditorModule();

	EXPECT_FALSE(FModuleManager::Get().IsModuleLoaded(TEXT("PlacementMode")));
	EXPECT_EQ(UE::Headless::GetPlacementModeStartupCount(), StartupsBefore);
}

TEST(PlacementCategory, StartupLoadsThePlacementModeWhenTheEditorHasNot)
{
	FHeadlessEditorOptions Options;
	Options.bPlacementModeLoaded = false;
	FHeadlessEditorSession Session(Options);

	EXPECT_TRUE(FModuleManager::Get().IsModuleLoaded(TEXT("PlacementMode")));
	EXPECT_EQ(GetItemClassNames().Num(), 10);
}
