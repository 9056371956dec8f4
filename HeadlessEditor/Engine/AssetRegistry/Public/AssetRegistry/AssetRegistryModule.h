#pragma once

#include "CoreMinimal.h"
#include "AssetRegistry/IAssetRegistry.h"
#include "Modules/ModuleInterface.h"

/** The module that owns the asset registry. */
class ASSETREGISTRY_API FAssetRegistryModule : public IModuleInterface
{
public:
	virtual void StartupModule() override;
	virtual void ShutdownModule() override;

	virtual IAssetRegistry& Get() const;
	IAssetRegistry* TryGet() const { return IAssetRegistry::Get(); }
	static IAssetRegistry& GetRegistry() { return IAssetRegistry::GetChecked(); }

	/** Tells the registry that NewAsset was created in memory. */
	static void AssetCreated(UObject* NewAsset) { IAssetRegistry::GetChecked().AssetCreated(NewAsset); }
	/** Tells the registry that DeletedAsset, in memory, was deleted. */
	static void AssetDeleted(UObject* DeletedAsset) { IAssetRegistry::GetChecked().AssetDeleted(DeletedAsset); }
};
