#pragma once

#include "CoreMinimal.h"
#include "GameFramework/Actor.h"
#include "UObject/ObjectMacros.h"
#include "UObject/ObjectPtr.h"
#include "KyroCineCamCapture.generated.h"

class UKyroCaptureComponent;

/** A cine camera whose capture component renders into a render target. */
UCLASS(ClassGroup = (Kyro))
class KYROCAMERA_API AKyroCineCamCapture : public AActor
{
	GENERATED_BODY()

public:
	AKyroCineCamCapture(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	/** The capture; its TextureTarget is the render target the camera fills. It is also the root. */
	UPROPERTY(VisibleAnywhere, BlueprintReadOnly, Category = "Kyro Capture")
	TObjectPtr<UKyroCaptureComponent> CaptureComponent;
};
