#pragma once

#include "CoreMinimal.h"
#include "GameFramework/Actor.h"
#include "UObject/ObjectMacros.h"

#include "Kyro360CamCapture.generated.h"

/** A 360-degree camera that renders into a render target. */
UCLASS()
class KYRO360CAMERA_API AKyro360CamCapture : public AActor
{
	GENERATED_BODY()
};
