#pragma once

#include "CoreMinimal.h"
#include "GameFramework/Actor.h"
#include "UObject/ObjectMacros.h"

#include "KyroViewportCapture.generated.h"

/** Captures the editor or game viewport into a render target. */
UCLASS()
class KYROCAMERA_API AKyroViewportCapture : public AActor
{
	GENERATED_BODY()
};
