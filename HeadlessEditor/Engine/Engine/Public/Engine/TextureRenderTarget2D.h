#pragma once

#include "CoreMinimal.h"
#include "Containers/EnumAsByte.h"
#include "Engine/TextureRenderTarget.h"
#include "UObject/ObjectMacros.h"
#include "TextureRenderTarget2D.generated.h"

/** The pixel formats a 2D render target offers. */
UENUM(BlueprintType)
enum ETextureRenderTargetFormat
{
	RTF_R8,
	RTF_RG8,
	RTF_RGBA8,
	RTF_RGBA8_SRGB,
	RTF_R16f,
	RTF_RG16f,
	RTF_RGBA16f,
	RTF_R32f,
	RTF_RG32f,
	RTF_RGBA32f,
	RTF_RGB10A2
};

/** A 2D texture that scene captures and media outputs render into. */
UCLASS(hidecategories = Object, hidecategories = Texture, hidecategories = Compression, hidecategories = Adjustments, hidecategories = Compositing, MinimalAPI)
class UTextureRenderTarget2D : public UTextureRenderTarget
{
	GENERATED_UCLASS_BODY()

public:
	/** The width of the texture. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = TextureRenderTarget2D, AssetRegistrySearchable)
	int32 SizeX;

	/** The height of the texture. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = TextureRenderTarget2D, AssetRegistrySearchable)
	int32 SizeY;

	/** The colour the target is cleared to. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = TextureRenderTarget2D)
	FLinearColor ClearColor;

	/** The format of the texture's pixels. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = TextureRenderTarget2D, AssetRegistrySearchable)
	TEnumAsByte<ETextureRenderTargetFormat> RenderTargetFormat;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = TextureRenderTarget2D, AssetRegistrySearchable)
	uint8 bAutoGenerateMips : 1;

	/** Sets the size, keeping the format. */
	ENGINE_API void InitAutoFormat(uint32 InSizeX, uint32 InSizeY);
	/** Changes the size of an initialised target. */
	ENGINE_API void ResizeTarget(uint32 InSizeX, uint32 InSizeY);
};
