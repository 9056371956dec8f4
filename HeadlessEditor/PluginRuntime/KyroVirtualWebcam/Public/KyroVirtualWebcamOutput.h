#pragma once

#include "CoreMinimal.h"
#include "GameFramework/Actor.h"
#include "UObject/ObjectMacros.h"
#include "UObject/ObjectPtr.h"
#include "KyroVirtualWebcamOutput.generated.h"

class UTextureRenderTarget2D;

/** Offers a render target to other applications as a webcam. */
UCLASS(ClassGroup = (Kyro))
class KYROVIRTUALWEBCAM_API AKyroVirtualWebcamOutput : public AActor
{
	GENERATED_BODY()

public:
	AKyroVirtualWebcamOutput(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	/** The texture the webcam shows. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Virtual Webcam")
	TObjectPtr<UTextureRenderTarget2D> RenderTarget;
};
