#pragma once

#include "CoreMinimal.h"
#include "GameFramework/Actor.h"
#include "KyroScreenCaptureOptions.h"
#include "UObject/ObjectMacros.h"
#include "KyroScreenCapture.generated.h"

/** Captures a monitor or a window into a render target. */
UCLASS(BlueprintType)
class KYROSCREENCAPTURE_API AKyroScreenCapture : public AActor
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Screen Capture")
	FKyroScreenCaptureOptions Options;
};
