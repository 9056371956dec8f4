#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "UObject/ObjectMacros.h"

#include "KyroNDISoundWave.generated.h"

/**
 * A sound wave fed by an NDI source's audio. The runtime derives it from the engine's USoundWave;
 * the headless engine has no audio classes, so here it is a plain object.
 */
UCLASS(BlueprintType)
class KYRONDI_API UKyroNDISoundWave : public UObject
{
	GENERATED_BODY()
};
