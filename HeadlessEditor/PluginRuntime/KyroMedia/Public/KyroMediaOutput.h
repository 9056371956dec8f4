#pragma once

#include "CoreMinimal.h"
#include "KyroSceneActor.h"
#include "UObject/ObjectMacros.h"
#include "UObject/ObjectPtr.h"
#include "KyroMediaOutput.generated.h"

class UTextureRenderTarget2D;

/** Encodes what a render target shows and streams or records it (RTMP, SRT, files). */
UCLASS(BlueprintType)
class KYROMEDIA_API AKyroMediaOutput : public AKyroSceneActor
{
	GENERATED_BODY()

public:
	/** The texture encoded. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Media Output")
	TObjectPtr<UTextureRenderTarget2D> RenderTarget = nullptr;

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
