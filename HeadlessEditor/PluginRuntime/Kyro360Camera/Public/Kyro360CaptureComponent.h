#pragma once

#include "CoreMinimal.h"
#include "Components/SceneCaptureComponent2D.h"
#include "UObject/ObjectMacros.h"
#include "Kyro360CaptureComponent.generated.h"

/** The scene capture of the plugin's 360-degree camera; its faces are stitched into one panorama. */
UCLASS(ClassGroup = Rendering, editinlinenew, meta = (BlueprintSpawnableComponent))
class KYRO360CAMERA_API UKyro360CaptureComponent : public USceneCaptureComponent2D
{
	GENERATED_BODY()

public:
	/** Width of the stitched panorama, in pixels. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Nimbrel Capture Settings")
	int32 PanoramaWidth = 4096;
};
