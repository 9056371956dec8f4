#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "UObject/ObjectMacros.h"
#include "Texture.generated.h"

/** A texture asset; the headless editor keeps no pixel data. */
UCLASS(abstract, MinimalAPI, BlueprintType)
class UTexture : public UObject
{
	GENERATED_UCLASS_BODY()

public:
	/** Whether the texture is in sRGB space. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Texture, AssetRegistrySearchable, AdvancedDisplay)
	bool SRGB;
};
