#pragma once

#include "CoreMinimal.h"
#include "Rendering/ShaderResourceManager.h"
#include "Templates/UniquePtr.h"
#include "Textures/SlateShaderResource.h"

typedef struct _cairo_surface cairo_surface_t;

/** An image loaded for brushes to draw: a Cairo surface read from a PNG file. */
class FHeadlessTexture : public FSlateShaderResource
{
public:
	FHeadlessTexture(cairo_surface_t* InSurface, const FString& InPath);
	virtual ~FHeadlessTexture();

	virtual uint32 GetWidth() const override;
	virtual uint32 GetHeight() const override;
	virtual ESlateShaderResource::Type GetType() const override { return ESlateShaderResource::NativeTexture; }

	cairo_surface_t* GetSurface() const { return Surface; }
	/** The file the image was read from. */
	const FString& GetPath() const { return Path; }

private:
	cairo_surface_t* Surface;
	FString Path;
};

/** Loads the PNG files brushes name, once each, and forgets them all when textures are reloaded. */
class FHeadlessTextureManager : public FSlateShaderResourceManager
{
public:
	virtual ~FHeadlessTextureManager();

	/** The texture of a brush's image; null when the brush names no file or the file is not a PNG it can read. */
	virtual FSlateShaderResourceProxy* GetShaderResource(const FSlateBrush& Brush, FVector2f LocalSize, float DrawScale) override;

	/** Frees every texture; brushes load theirs again when next drawn. */
	void ReleaseTextures();

private:
	TArray<TUniquePtr<FHeadlessTexture>> Textures;
};
