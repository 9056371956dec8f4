#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "UObject/ObjectMacros.h"
#include "KyroNDISoundWave.generated.h"

/** The sound an NDI receiver plays from its source. */
UCLASS(BlueprintType)
class KYRONDI_API UKyroNDISoundWave : public UObject
{
	GENERATED_BODY()
};
