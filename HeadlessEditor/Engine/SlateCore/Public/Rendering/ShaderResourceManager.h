#pragma once

#include "CoreMinimal.h"
#include "Styling/SlateBrush.h"
#include "Textures/SlateShaderResource.h"

/** Loads and keeps the textures brushes draw; each renderer has one. */
class SLATECORE_API FSlateShaderResourceManager
{
public:
	FSlateShaderResourceManager() {}
	virtual ~FSlateShaderResourceManager() { ClearTextureMap(); }

	/** The texture proxy for a brush, loading the texture the first time; null if there is no texture. */
	virtual FSlateShaderResourceProxy* GetShaderResource(const FSlateBrush& Brush, FVector2f LocalSize, float DrawScale) = 0;

	/** A handle on the brush's texture that stays valid as long as the texture is kept. */
	virtual FSlateResourceHandle GetResourceHandle(const FSlateBrush& Brush, FVector2f LocalSize, float DrawScale);
	virtual FSlateResourceHandle GetResourceHandle(const FSlateBrush& Brush);

protected:
	/** Frees every proxy, which invalidates the handles brushes hold. */
	void ClearTextureMap();

	/** The file a brush's image is read from. */
	FString GetResourcePath(const FSlateBrush& InBrush) const { return InBrush.GetResourceName().ToString(); }

	/** The proxies made so far, by resource name. */
	TMap<FName, FSlateShaderResourceProxy*> ResourceMap;

private:
	FSlateShaderResourceManager(const FSlateShaderResourceManager&);
	FSlateShaderResourceManager& operator=(const FSlateShaderResourceManager&);
};
