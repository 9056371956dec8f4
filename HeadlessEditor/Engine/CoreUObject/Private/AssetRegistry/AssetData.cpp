#include "AssetRegistry/AssetData.h"

#include "Misc/PackageName.h"
#include "Templates/Casts.h"
#include "UObject/Class.h"
#include "UObject/Package.h"

FAssetData::FAssetData(const UObject* InAsset, ECreationFlags InCreationFlags)
{
	if (InAsset)
	{
		const FString Package = InAsset->GetOutermost()->GetName();
		PackageName = FName(*Package);
		PackagePath = FName(*FPackageName::GetLongPackagePath(Package));
		AssetName = InAsset->GetFName();
		AssetClassPath = FTopLevelAssetPath(InAsset->GetClass()->GetOutermost()->GetFName(), InAsset->GetClass()->GetFName());
	}
}

FAssetData::FAssetData(const UObject* InAsset, bool bAllowBlueprintClass)
	: FAssetData(InAsset, bAllowBlueprintClass ? ECreationFlags::AllowBlueprintClass : ECreationFlags::None)
{
}

bool FAssetData::IsAssetLoaded() const
{
	return GetAsset() != nullptr;
}

UObject* FAssetData::GetAsset() const
{
	if (!IsValid())
	{
		return nullptr;
	}
	UObject* Package = StaticFindObjectFast(UPackage::StaticClass(), nullptr, PackageName);
	return Package ? StaticFindObjectFast(nullptr, Package, AssetName) : nullptr;
}

UClass* FAssetData::GetClass() const
{
	return AssetClassPath.IsNull() ? nullptr : Cast<UClass>(StaticFindObject(UClass::StaticClass(), nullptr, *AssetClassPath.ToString()));
}
