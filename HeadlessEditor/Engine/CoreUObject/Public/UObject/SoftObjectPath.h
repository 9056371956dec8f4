#pragma once

#include "CoreMinimal.h"
#include "UObject/TopLevelAssetPath.h"

/** A path to an object that may not be loaded: its top-level asset path and a sub-object path. */
struct COREUOBJECT_API FSoftObjectPath
{
	FSoftObjectPath() = default;
	explicit FSoftObjectPath(const FString& Path);
	explicit FSoftObjectPath(FTopLevelAssetPath InAssetPath, FString InSubPathString = FString())
		: AssetPath(InAssetPath)
		, SubPathString(MoveTemp(InSubPathString))
	{
	}

	FTopLevelAssetPath GetAssetPath() const { return AssetPath; }
	FName GetLongPackageFName() const { return AssetPath.GetPackageName(); }
	FString GetLongPackageName() const { return AssetPath.GetPackageName().ToString(); }
	FString GetAssetName() const { return AssetPath.GetAssetName().ToString(); }
	const FString& GetSubPathString() const { return SubPathString; }
	bool IsValid() const { return AssetPath.IsValid(); }
	bool IsNull() const { return AssetPath.IsNull(); }
	FString ToString() const;

private:
	FTopLevelAssetPath AssetPath;
	FString SubPathString;
};
