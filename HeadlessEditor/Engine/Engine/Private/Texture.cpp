#include "Engine/Texture.h"

#include "Engine/TextureRenderTarget.h"
#include "Engine/TextureRenderTarget2D.h"

UTexture::UTexture(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, SRGB(true)
{
}

UTextureRenderTarget::UTextureRenderTarget(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, TargetGamma(0.0f)
{
}

UTextureRenderTarget2D::UTextureRenderTarget2D(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
	SizeX = 1;
	SizeY = 1;
	RenderTargetFormat = RTF_RGBA16f;
	bAutoGenerateMips = false;
	ClearColor = FLinearColor(0.0f, 0.0f, 0.0f, 1.0f);
}

void UTextureRenderTarget2D::InitAutoFormat(uint32 InSizeX, uint32 InSizeY)
{
	check(InSizeX > 0 && InSizeY > 0);
	SizeX = static_cast<int32>(InSizeX);
	SizeY = static_cast<int32>(InSizeY);
}

void UTextureRenderTarget2D::ResizeTarget(uint32 InSizeX, uint32 InSizeY)
{
	SizeX = static_cast<int32>(InSizeX);
	SizeY = static_cast<int32>(InSizeY);
}
