#pragma once

#include "CoreMinimal.h"
#include "Components/SceneCaptureComponent2D.h"
#include "UObject/ObjectMacros.h"
#include "KyroCaptureComponent.generated.h"

/** The scene capture of a cine camera: renders the camera's view into its TextureTarget. */
UCLASS(ClassGroup = (Kyro), meta = (BlueprintSpawnableComponent))
class KYROCAMERA_API UKyroCaptureComponent : public USceneCaptureComponent2D
{
	GENERATED_BODY()

public:
	UKyroCaptureComponent(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());
};
