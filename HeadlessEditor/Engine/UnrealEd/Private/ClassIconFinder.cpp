#include "ClassIconFinder.h"

#include "Templates/Casts.h"
#include "UObject/Class.h"

const UClass* FClassIconFinder::GetIconClassForAssetData(const FAssetData& InAssetData, bool* bOutIsClassType)
{
	if (bOutIsClassType)
	{
		*bOutIsClassType = false;
	}
	UClass* AssetClass = InAssetData.GetClass();
	if (!AssetClass)
	{
		return nullptr;
	}
	// A class shows its own icon. The headless editor has no blueprints, whose parent class would show.
	if (AssetClass == UClass::StaticClass())
	{
		if (bOutIsClassType)
		{
			*bOutIsClassType = true;
		}
		return Cast<UClass>(InAssetData.GetAsset());
	}
	return AssetClass;
}
