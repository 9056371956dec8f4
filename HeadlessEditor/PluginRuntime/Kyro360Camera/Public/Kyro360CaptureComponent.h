#pragma once

#include "CoreMinimal.h"
#include "Components/SceneCaptureComponent2D.h"
#include "UObject/ObjectMacros.h"
#include "Kyro360CaptureComponent.generated.h"

/** Captures the full sphere around the camera and unwraps it into its TextureTarget. */
UCLASS(ClassGroup = (Kyro), meta = (BlueprintSpawnableComponent))
class KYRO360CAMERA_API UKyro360CaptureComponent : public USceneCaptureComponent2D
{
	GENERATED_BODY()

public:
	UKyro360CaptureComponent(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());
};
