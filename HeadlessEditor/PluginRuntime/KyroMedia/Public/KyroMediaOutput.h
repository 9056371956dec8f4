#pragma once

#include "CoreMinimal.h"
#include "GameFramework/Actor.h"
#include "UObject/ObjectMacros.h"
#include "UObject/ObjectPtr.h"
#include "KyroMediaOutput.generated.h"

class UTextureRenderTarget2D;

/** Encodes a render target and streams or records it (RTMP, SRT, files). */
UCLASS(ClassGroup = (Kyro))
class KYROMEDIA_API AKyroMediaOutput : public AActor
{
	GENERATED_BODY()

public:
	AKyroMediaOutput(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	/** The texture encoded. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Media Output")
	TObjectPtr<UTextureRenderTarget2D> RenderTarget;
};
