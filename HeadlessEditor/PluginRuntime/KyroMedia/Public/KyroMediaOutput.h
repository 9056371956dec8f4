#pragma once

#include "CoreMinimal.h"
#include "GameFramework/Actor.h"
#include "UObject/ObjectMacros.h"

#include "KyroMediaOutput.generated.h"

/** Encodes a render target and streams or records it. */
UCLASS()
class KYROMEDIA_API AKyroMediaOutput : public AActor
{
	GENERATED_BODY()
};
