#pragma once

#include "CoreMinimal.h"

/** The path of an object directly inside a package: "/Package/Name.Object". */
struct COREUOBJECT_API FTopLevelAssetPath
{
	FTopLevelAssetPath() {}
	FTopLevelAssetPath(FName InPackageName, FName InAssetName)
		: PackageName(InPackageName)
		, AssetName(InAssetName)
	{
	}

	FName GetPackageName() const { return PackageName; }
	FName GetAssetName() const { return AssetName; }
	bool IsNull() const { return PackageName.IsNone() && AssetName.IsNone(); }
	FString ToString() const;

	bool operator==(const FTopLevelAssetPath& Other) const { return PackageName == Other.PackageName && AssetName == Other.AssetName; }

private:
	FName PackageName;
	FName AssetName;
};
