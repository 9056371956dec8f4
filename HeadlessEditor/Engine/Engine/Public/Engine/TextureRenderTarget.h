#pragma once

#include "CoreMinimal.h"
#include "Engine/Texture.h"
#include "UObject/ObjectMacros.h"
#include "TextureRenderTarget.generated.h"

/** A texture that can be rendered into. */
UCLASS(abstract, MinimalAPI)
class UTextureRenderTarget : public UTexture
{
	GENERATED_UCLASS_BODY()

public:
	/** The gamma to render with; zero uses the display gamma. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = TextureRenderTarget)
	float TargetGamma;
};
