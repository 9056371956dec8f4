#pragma once

#include "CoreMinimal.h"
#include "Components/SceneCaptureComponent2D.h"
#include "UObject/ObjectMacros.h"
#include "KyroCGCaptureComponent.generated.h"

/** The scene capture that renders the computer-generated layer of a composition. */
UCLASS(ClassGroup = Rendering, editinlinenew, meta = (BlueprintSpawnableComponent))
class KYROCOMPOSURE_API UKyroCGCaptureComponent : public USceneCaptureComponent2D
{
	GENERATED_BODY()

public:
	/** The composition layer this capture feeds. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Nimbrel Capture Settings")
	FName CompositeLayer;
};
