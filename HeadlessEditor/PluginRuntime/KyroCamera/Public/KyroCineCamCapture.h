#pragma once

#include "CoreMinimal.h"
#include "GameFramework/Actor.h"
#include "UObject/ObjectMacros.h"

#include "KyroCineCamCapture.generated.h"

/** A cinematic camera that renders into a render target for streaming. */
UCLASS()
class KYROCAMERA_API AKyroCineCamCapture : public AActor
{
	GENERATED_BODY()
};
