#pragma once

#include "CoreMinimal.h"
#include "Components/SceneCaptureComponent2D.h"
#include "UObject/ObjectMacros.h"
#include "KyroCaptureComponent.generated.h"

/** The scene capture of the plugin's cine camera. */
UCLASS(ClassGroup = Rendering, editinlinenew, meta = (BlueprintSpawnableComponent))
class KYROCAMERA_API UKyroCaptureComponent : public USceneCaptureComponent2D
{
	GENERATED_BODY()

public:
	/** Frames captured per second. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Nimbrel Capture Settings")
	int32 CaptureFrameRate = 30;

	/** Whether the capture keeps the scene's alpha channel. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Nimbrel Capture Settings")
	bool bCaptureAlpha = false;
};
