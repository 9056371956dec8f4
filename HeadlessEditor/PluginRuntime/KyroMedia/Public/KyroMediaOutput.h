#pragma once

#include "CoreMinimal.h"
#include "GameFramework/Actor.h"
#include "UObject/ObjectMacros.h"
#include "KyroMediaOutput.generated.h"

/** Encodes what a render target shows and streams or records it. */
UCLASS(BlueprintType)
class KYROMEDIA_API AKyroMediaOutput : public AActor
{
	GENERATED_BODY()

public:
	AKyroMediaOutput(const FObjectInitializer& ObjectInitializer);

	/** Whether the output is running. */
	UPROPERTY(VisibleAnywhere, BlueprintReadOnly, Category = "Media Output")
	bool HasStarted = false;

	/** How long the output has been running, in milliseconds. */
	UPROPERTY(VisibleAnywhere, BlueprintReadOnly, Category = "Media Output")
	uint64 DurationMs = 0;

	/** Hides the encoder API options from the details panel. */
	UPROPERTY(EditAnywhere, Category = "Media Output")
	bool bHideAPIOptions = false;

	/** Starts encoding; the duration counts from zero. */
	UFUNCTION(BlueprintCallable, CallInEditor, Category = "Media Output")
	void Start();

	/** Stops encoding; the duration keeps its last value. */
	UFUNCTION(BlueprintCallable, CallInEditor, Category = "Media Output")
	void Stop();
};
