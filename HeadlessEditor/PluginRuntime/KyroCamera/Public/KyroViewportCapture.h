#pragma once

#include "CoreMinimal.h"
#include "KyroSceneActor.h"
#include "UObject/ObjectMacros.h"
#include "UObject/ObjectPtr.h"
#include "KyroViewportCapture.generated.h"

class UTextureRenderTarget2D;

/** Copies what the editor or game viewport shows into a render target. */
UCLASS(ClassGroup = (Kyro))
class KYROCAMERA_API AKyroViewportCapture : public AKyroSceneActor
{
	GENERATED_BODY()

public:
	/** The render target the viewport is copied into. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Kyro Capture")
	TObjectPtr<UTextureRenderTarget2D> RenderTarget = nullptr;
};
