#pragma once

#include "AssetRegistry/AssetData.h"
#include "CoreMinimal.h"
#include "Editor.h"
#include "Modules/ModuleInterface.h"
#include "Modules/ModuleManager.h"
#include "Templates/Casts.h"
#include "Textures/SlateIcon.h"
#include "UObject/Class.h"

class SWidget;
class UActorFactory;

/** A category of the placement panel. */
struct FPlacementCategoryInfo
{
	FPlacementCategoryInfo(FText InDisplayName, FSlateIcon InDisplayIcon, FName InHandle, FString InTag, int32 InSortOrder = 0, bool bInSortable = true)
		: DisplayName(InDisplayName)
		, DisplayIcon(InDisplayIcon)
		, UniqueHandle(InHandle)
		, SortOrder(InSortOrder)
		, TagMetaData(MoveTemp(InTag))
		, bSortable(bInSortable)
	{
	}

	FPlacementCategoryInfo(FText InDisplayName, FName InHandle, FString InTag, int32 InSortOrder = 0, bool bInSortable = true)
		: DisplayName(InDisplayName)
		, UniqueHandle(InHandle)
		, SortOrder(InSortOrder)
		, TagMetaData(MoveTemp(InTag))
		, bSortable(bInSortable)
	{
	}

	FText DisplayName;
	FSlateIcon DisplayIcon;
	FName UniqueHandle;
	int32 SortOrder;
	FString TagMetaData;
	TFunction<TSharedRef<SWidget>()> CustomGenerator;
	bool bSortable;
};

/** Something a user can drag from the placement panel into the level. */
struct FPlaceableItem
{
	FPlaceableItem()
		: Factory(nullptr)
		, bAlwaysUseGenericThumbnail(false)
	{
	}

	/** An item placed with the given factory, or with the one the placement mode picks for the asset when null. */
	FPlaceableItem(UActorFactory* InFactory, const FAssetData& InAssetData, TOptional<int32> InSortOrder = TOptional<int32>())
		: Factory(InFactory)
		, AssetData(InAssetData)
		, bAlwaysUseGenericThumbnail(false)
		, SortOrder(InSortOrder)
	{
		AutoSetNativeAndDisplayName();
	}

	/** Names the item after its class when the asset is a class, otherwise after the asset (the headless engine has no volumes or shapes). */
	void AutoSetNativeAndDisplayName()
	{
		UClass* Class = AssetData.GetClass() == UClass::StaticClass() ? Cast<UClass>(AssetData.GetAsset()) : nullptr;
		if (Class)
		{
			Class->GetName(NativeName);
			DisplayName = Class->GetDisplayNameText();
		}
		else
		{
			NativeName = AssetData.AssetName.ToString();
			DisplayName = FText::FromName(AssetData.AssetName);
		}
	}

	UActorFactory* Factory;
	FAssetData AssetData;
	FString NativeName;
	FText DisplayName;
	FName ClassThumbnailBrushOverride;
	FName ClassIconBrushOverride;
	bool bAlwaysUseGenericThumbnail;
	TOptional<FLinearColor> AssetTypeColorOverride;
	TOptional<int32> SortOrder;
};

/** The identifier of a registered placeable item. */
struct FPlacementModeID
{
	FName Category;
	int32 UniqueID = INDEX_NONE;
};

/** The editor's placement mode: the panel of placeable actors, by category. */
class IPlacementModeModule : public IModuleInterface
{
public:
	/** Gets the module, loading it if needed. */
	static inline IPlacementModeModule& Get()
	{
		return FModuleManager::LoadModuleChecked<IPlacementModeModule>(TEXT("PlacementMode"));
	}

	static inline bool IsAvailable()
	{
		return FModuleManager::Get().IsModuleLoaded(TEXT("PlacementMode"));
	}

	/** Adds a category. @return false if one with the same handle exists already. */
	virtual bool RegisterPlacementCategory(const FPlacementCategoryInfo& Info) = 0;
	/** The category registered under a handle, or null. */
	virtual const FPlacementCategoryInfo* GetRegisteredPlacementCategory(FName UniqueHandle) const = 0;
	/** Removes a category and its items. */
	virtual void UnregisterPlacementCategory(FName Handle) = 0;
	/** The categories, in the order the panel shows them. */
	virtual void GetSortedCategories(TArray<FPlacementCategoryInfo>& OutCategories) const = 0;
	/** Adds an item to a category. @return its identifier, or nothing if the category does not exist. */
	virtual TOptional<FPlacementModeID> RegisterPlaceableItem(FName CategoryName, const TSharedRef<FPlaceableItem>& Item) = 0;
	virtual void UnregisterPlaceableItem(FPlacementModeID ID) = 0;
	/** Appends the items of a category, in registration order. */
	virtual void GetItemsForCategory(FName Category, TArray<TSharedPtr<FPlaceableItem>>& OutItems) const = 0;
};
