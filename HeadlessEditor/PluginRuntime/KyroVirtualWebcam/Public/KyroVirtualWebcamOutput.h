#pragma once

#include "CoreMinimal.h"
#include "KyroSceneActor.h"
#include "UObject/ObjectMacros.h"
#include "UObject/ObjectPtr.h"
#include "KyroVirtualWebcamOutput.generated.h"

class UTextureRenderTarget2D;

/** Offers a render target to other applications as a webcam. */
UCLASS(ClassGroup = (Kyro))
class KYROVIRTUALWEBCAM_API AKyroVirtualWebcamOutput : public AKyroSceneActor
{
	GENERATED_BODY()

public:
	/** The texture the webcam shows. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Virtual Webcam")
	TObjectPtr<UTextureRenderTarget2D> RenderTarget = nullptr;
};
