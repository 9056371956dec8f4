#pragma once

#include "CoreMinimal.h"
#include "Engine/SceneCapture.h"
#include "UObject/ObjectMacros.h"
#include "UObject/ObjectPtr.h"
#include "SceneCapture2D.generated.h"

class USceneCaptureComponent2D;

/** An actor that captures the scene through a 2D scene capture component. */
UCLASS(hidecategories = (Collision, Material, Attachment, Actor), MinimalAPI)
class ASceneCapture2D : public ASceneCapture
{
	GENERATED_UCLASS_BODY()

private:
	/** Scene capture component. */
	UPROPERTY(Category = DecalActor, VisibleAnywhere, BlueprintReadOnly, meta = (AllowPrivateAccess = "true"))
	TObjectPtr<class USceneCaptureComponent2D> CaptureComponent2D;

public:
	/** Returns CaptureComponent2D subobject **/
	ENGINE_API class USceneCaptureComponent2D* GetCaptureComponent2D() const { return CaptureComponent2D; }
};
