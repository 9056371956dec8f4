#pragma once

#include "CoreMinimal.h"
#include "UObject/Interface.h"
#include "UObject/ObjectMacros.h"
#include "IAssetTools.generated.h"

class UClass;
class UFactory;

UINTERFACE(MinimalApi, meta = (CannotImplementInterfaceInBlueprint))
class UAssetTools : public UInterface
{
	GENERATED_UINTERFACE_BODY()
};

/** Creating, naming and managing assets in the project's content folders. */
class ASSETTOOLS_API IAssetTools
{
	GENERATED_IINTERFACE_BODY()

public:
	static IAssetTools& Get();

	/**
	 * Creates an asset named AssetName in the package PackagePath/AssetName through Factory, or
	 * directly from AssetClass without one. Returns null when the name is invalid or taken.
	 */
	virtual UObject* CreateAsset(const FString& AssetName, const FString& PackagePath, UClass* AssetClass, UFactory* Factory, FName CallingContext = NAME_None) = 0;

	/**
	 * A package and asset name, based on InBasePackageName with InSuffix, that no asset uses:
	 * invalid characters become '_' and a number is added or raised until the name is free.
	 */
	virtual void CreateUniqueAssetName(const FString& InBasePackageName, const FString& InSuffix, FString& OutPackageName, FString& OutAssetName) = 0;
};
