#pragma once

#include "CoreMinimal.h"
#include "Components/SceneCaptureComponent.h"
#include "UObject/ObjectMacros.h"
#include "UObject/ObjectPtr.h"
#include "SceneCaptureComponent2D.generated.h"

class UTextureRenderTarget2D;

/** Captures the scene through a perspective or orthographic camera into a 2D render target. */
UCLASS(hidecategories = (Collision, Object, Physics, SceneComponent), ClassGroup = Rendering, editinlinenew, meta = (BlueprintSpawnableComponent), MinimalAPI)
class USceneCaptureComponent2D : public USceneCaptureComponent
{
	GENERATED_UCLASS_BODY()

public:
	/** Camera field of view, in degrees. */
	UPROPERTY(interp, EditAnywhere, BlueprintReadWrite, Category = Projection, meta = (DisplayName = "Field of View", UIMin = "5.0", UIMax = "170", ClampMin = "0.001", ClampMax = "360.0"))
	float FOVAngle;

	/** The width of an orthographic view, in world units. */
	UPROPERTY(interp, EditAnywhere, BlueprintReadWrite, Category = Projection)
	float OrthoWidth;

	/** The render target the capture writes to. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = SceneCapture)
	TObjectPtr<class UTextureRenderTarget2D> TextureTarget;
};
