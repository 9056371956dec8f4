#include "HeadlessTextures.h"

#include "Containers/StringConv.h"
#include "Styling/SlateBrush.h"

#include <cairo.h>

FHeadlessTexture::FHeadlessTexture(cairo_surface_t* InSurface, const FString& InPath)
	: Surface(InSurface)
	, Path(InPath)
{
}

FHeadlessTexture::~FHeadlessTexture()
{
	cairo_surface_destroy(Surface);
}

uint32 FHeadlessTexture::GetWidth() const
{
	return static_cast<uint32>(cairo_image_surface_get_width(Surface));
}

uint32 FHeadlessTexture::GetHeight() const
{
	return static_cast<uint32>(cairo_image_surface_get_height(Surface));
}

FHeadlessTextureManager::~FHeadlessTextureManager()
{
	ReleaseTextures();
}

FSlateShaderResourceProxy* FHeadlessTextureManager::GetShaderResource(const FSlateBrush& Brush, FVector2f LocalSize, float DrawScale)
{
	const FName ResourceName = Brush.GetResourceName();
	if (ResourceName == NAME_None)
	{
		return nullptr;
	}
	if (FSlateShaderResourceProxy** Existing = ResourceMap.Find(ResourceName))
	{
		return *Existing;
	}
	const FString Path = GetResourcePath(Brush);
	cairo_surface_t* Surface = cairo_image_surface_create_from_png(TCHAR_TO_UTF8(*Path));
	if (cairo_surface_status(Surface) != CAIRO_STATUS_SUCCESS)
	{
		cairo_surface_destroy(Surface);
		return nullptr;
	}
	Textures.Add(MakeUnique<FHeadlessTexture>(Surface, Path));
	FHeadlessTexture* Texture = Textures.Last().get();
	FSlateShaderResourceProxy* Proxy = new FSlateShaderResourceProxy();
	Proxy->Resource = Texture;
	Proxy->ActualSize = FIntPoint(static_cast<int32>(Texture->GetWidth()), static_cast<int32>(Texture->GetHeight()));
	ResourceMap.Add(ResourceName, Proxy);
	return Proxy;
}

void FHeadlessTextureManager::ReleaseTextures()
{
	// The proxies go first: they tell the brushes' handles that the textures are gone.
	ClearTextureMap();
	Textures.Empty();
}
