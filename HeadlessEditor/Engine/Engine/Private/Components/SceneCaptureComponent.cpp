#include "Components/SceneCaptureComponent.h"

#include "Components/SceneCaptureComponent2D.h"

USceneCaptureComponent::USceneCaptureComponent(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, PrimitiveRenderMode(ESceneCapturePrimitiveRenderMode::PRM_RenderScenePrimitives)
	, bCaptureEveryFrame(true)
	, bCaptureOnMovement(true)
	, ShowFlags(ESFIM_Game)
{
}

USceneCaptureComponent2D::USceneCaptureComponent2D(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, FOVAngle(90.0f)
	, OrthoWidth(512.0f)
{
}
