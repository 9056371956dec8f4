#pragma once

#include "CoreMinimal.h"
#include "UObject/SoftObjectPath.h"

class UClass;
#include "UObject/TopLevelAssetPath.h"

class UObject;

/** What the asset registry knows of one asset, loaded or not. */
struct COREUOBJECT_API FAssetData
{
	enum class ECreationFlags
	{
		None = 0,
		AllowBlueprintClass = 1 << 0,
		SkipAssetRegistryTagsGathering = 1 << 1,
	};

	/** The package's name, e.g. "/Game/Folder/Asset". */
	FName PackageName;
	/** The package's folder, e.g. "/Game/Folder". */
	FName PackagePath;
	/** The asset's object name, e.g. "Asset". */
	FName AssetName;
	/** The path of the asset's class, e.g. "/Script/Engine.TextureRenderTarget2D". */
	FTopLevelAssetPath AssetClassPath;

	/** An invalid asset. */
	FAssetData() = default;
	FAssetData(const UObject* InAsset, ECreationFlags InCreationFlags = ECreationFlags::None);
	FAssetData(const UObject* InAsset, bool bAllowBlueprintClass);

	bool IsValid() const { return !PackageName.IsNone() && !AssetName.IsNone(); }
	bool IsAssetLoaded() const;
	/** The asset if it is in memory; the headless editor has nothing on disk to load. */
	UObject* GetAsset() const;
	/** The class of the asset, if that class is loaded. */
	UClass* GetClass() const;
	FSoftObjectPath GetSoftObjectPath() const { return FSoftObjectPath(FTopLevelAssetPath(PackageName, AssetName)); }
	FString GetObjectPathString() const { return GetSoftObjectPath().ToString(); }
};
