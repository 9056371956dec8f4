#pragma once

#include "CoreMinimal.h"

/** The path of an object directly inside a package: "/Path/To/Package.AssetName". */
struct COREUOBJECT_API FTopLevelAssetPath
{
	FTopLevelAssetPath() = default;
	FTopLevelAssetPath(FName InPackageName, FName InAssetName)
		: PackageName(InPackageName)
		, AssetName(InAssetName)
	{
	}
	/** Parses "/Package.Asset"; anything else leaves the path empty. */
	explicit FTopLevelAssetPath(const FString& Path);

	FName GetPackageName() const { return PackageName; }
	FName GetAssetName() const { return AssetName; }
	bool IsValid() const { return !PackageName.IsNone(); }
	bool IsNull() const { return PackageName.IsNone(); }
	FString ToString() const;

	friend bool operator==(const FTopLevelAssetPath& A, const FTopLevelAssetPath& B) { return A.PackageName == B.PackageName && A.AssetName == B.AssetName; }
	friend bool operator!=(const FTopLevelAssetPath& A, const FTopLevelAssetPath& B) { return !(A == B); }

private:
	FName PackageName;
	FName AssetName;
};
