#pragma once

#include "CoreMinimal.h"
#include "GameFramework/Actor.h"
#include "UObject/ObjectMacros.h"
#include "UObject/ObjectPtr.h"
#include "Kyro360CamCapture.generated.h"

class UKyro360CaptureComponent;

/** A 360-degree camera whose capture component renders into a render target. */
UCLASS(ClassGroup = (Kyro))
class KYRO360CAMERA_API AKyro360CamCapture : public AActor
{
	GENERATED_BODY()

public:
	AKyro360CamCapture(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	/** The capture; its TextureTarget is the render target the camera fills. It is also the root. */
	UPROPERTY(VisibleAnywhere, BlueprintReadOnly, Category = "Kyro Capture")
	TObjectPtr<UKyro360CaptureComponent> CaptureComponent;
};
