#include "AssetRegistry/AssetData.h"

#include "Templates/Casts.h"
#include "UObject/Class.h"
#include "UObject/Object.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

FString FTopLevelAssetPath::ToString() const
{
	if (IsNull())
	{
		return FString();
	}
	return PackageName.ToString() + TEXT(".") + AssetName.ToString();
}

FAssetData::FAssetData(const UObject* InAsset, FAssetData::ECreationFlags InCreationFlags)
{
	if (InAsset == nullptr)
	{
		return;
	}
	const UPackage* Package = InAsset->GetOutermost();
	PackageName = Package->GetFName();
	const FString PackageNameString = PackageName.ToString();
	int32 LastSlash = INDEX_NONE;
	PackagePath = PackageNameString.FindLastChar(TEXT('/'), LastSlash) ? FName(*PackageNameString.Left(LastSlash)) : NAME_None;
	AssetName = InAsset->GetFName();
	const UClass* Class = InAsset->GetClass();
	AssetClassPath = FTopLevelAssetPath(Class->GetOutermost()->GetFName(), Class->GetFName());
}

FAssetData::FAssetData(const UObject* InAsset, bool bAllowBlueprintClass)
	: FAssetData(InAsset, bAllowBlueprintClass ? ECreationFlags::AllowBlueprintClass : ECreationFlags::None)
{
}

FString FAssetData::GetObjectPathString() const
{
	return PackageName.ToString() + TEXT(".") + AssetName.ToString();
}

UObject* FAssetData::GetAsset() const
{
	return IsValid() ? StaticFindObject(nullptr, nullptr, *GetObjectPathString()) : nullptr;
}

UClass* FAssetData::GetClass() const
{
	return AssetClassPath.IsNull() ? nullptr : Cast<UClass>(StaticFindObject(UClass::StaticClass(), nullptr, *AssetClassPath.ToString()));
}
