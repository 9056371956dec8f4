#pragma once

#include "CoreMinimal.h"
#include "UObject/TopLevelAssetPath.h"

class UClass;
class UObject;

/** What the asset registry knows about an asset (or a class) without loading it. */
struct COREUOBJECT_API FAssetData
{
	enum class ECreationFlags
	{
		None = 0,
		AllowBlueprintClass = 1 << 0,
		SkipAssetRegistryTagsGathering = 1 << 1,
	};

	FAssetData() {}
	/** Describes a loaded object: its package, path, name and class. */
	FAssetData(const UObject* InAsset, FAssetData::ECreationFlags InCreationFlags = ECreationFlags::None);
	FAssetData(const UObject* InAsset, bool bAllowBlueprintClass);

	bool IsValid() const { return !AssetName.IsNone(); }
	/** The object path, "/Package/Path.Name". */
	FString GetObjectPathString() const;
	/** The asset if it is loaded, found by its path. */
	UObject* GetAsset() const;
	/** The class of the asset, if that class is loaded. */
	UClass* GetClass() const;

	FName PackageName;
	FName PackagePath;
	FName AssetName;
	FTopLevelAssetPath AssetClassPath;
};
