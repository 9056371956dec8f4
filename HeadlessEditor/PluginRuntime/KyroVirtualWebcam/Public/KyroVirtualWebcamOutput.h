#pragma once

#include "CoreMinimal.h"
#include "GameFramework/Actor.h"
#include "UObject/ObjectMacros.h"

#include "KyroVirtualWebcamOutput.generated.h"

/** Offers a render target to other applications as a webcam. */
UCLASS()
class KYROVIRTUALWEBCAM_API AKyroVirtualWebcamOutput : public AActor
{
	GENERATED_BODY()
};
