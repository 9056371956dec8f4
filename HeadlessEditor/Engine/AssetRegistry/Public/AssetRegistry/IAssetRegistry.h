#pragma once

#include "CoreMinimal.h"
#include "AssetRegistry/AssetData.h"
#include "UObject/Interface.h"
#include "UObject/ObjectMacros.h"
#include "UObject/SoftObjectPath.h"
#include "IAssetRegistry.generated.h"

UINTERFACE(MinimalApi, BlueprintType, meta = (CannotImplementInterfaceInBlueprint))
class UAssetRegistry : public UInterface
{
	GENERATED_UINTERFACE_BODY()
};

/**
 * What the editor knows of the project's assets. The headless editor has nothing on disk: its
 * assets are the ones in memory, under the mounted roots such as "/Game".
 */
class ASSETREGISTRY_API IAssetRegistry
{
	GENERATED_IINTERFACE_BODY()

public:
	/** The registry, or null before the AssetRegistry module has started. */
	static IAssetRegistry* Get();
	/** The registry; fatal before the AssetRegistry module has started. */
	static IAssetRegistry& GetChecked();

	/** The asset at ObjectPath ("/Package/Path.AssetName"), or an invalid FAssetData. */
	virtual FAssetData GetAssetByObjectPath(const FSoftObjectPath& ObjectPath, bool bIncludeOnlyOnDiskAssets = false, bool bSkipARFilteredAssets = true) const = 0;
	/** The assets whose package is in PackagePath (and its sub-folders when bRecursive). */
	virtual bool GetAssetsByPath(FName PackagePath, TArray<FAssetData>& OutAssetData, bool bRecursive = false, bool bIncludeOnlyOnDiskAssets = false) const = 0;
	/** Whether the initial scan of the content folders still runs; the headless one never runs. */
	virtual bool IsLoadingAssets() const = 0;

	/** Tells the registry that NewAsset was created in memory. */
	virtual void AssetCreated(UObject* NewAsset) = 0;
	/** Tells the registry that DeletedAsset, in memory, was deleted. */
	virtual void AssetDeleted(UObject* DeletedAsset) = 0;

	DECLARE_EVENT_OneParam(IAssetRegistry, FInMemoryAssetCreatedEvent, UObject*);
	/** Broadcast by AssetCreated. */
	virtual FInMemoryAssetCreatedEvent& OnInMemoryAssetCreated() = 0;

	DECLARE_EVENT_OneParam(IAssetRegistry, FInMemoryAssetDeletedEvent, UObject*);
	/** Broadcast by AssetDeleted. */
	virtual FInMemoryAssetDeletedEvent& OnInMemoryAssetDeleted() = 0;
};
