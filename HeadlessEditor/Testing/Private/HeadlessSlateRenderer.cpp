#include "HeadlessSlateRenderer.h"

#include "Fonts/FontCache.h"
#include "HeadlessTextures.h"

namespace
{
	/** Glyphs are drawn by Pango straight into the picture, so there are no font atlases to make. */
	class FHeadlessFontAtlasFactory : public ISlateFontAtlasFactory
	{
	};

	TSharedRef<FSlateFontServices> MakeFontServices()
	{
		// One font cache serves measuring and drawing: the headless editor has no render thread.
		const TSharedRef<FSlateFontCache> FontCache = MakeShared<FSlateFontCache>(MakeShared<FHeadlessFontAtlasFactory>(), ESlateTextureAtlasThreadId::Game);
		return MakeShared<FSlateFontServices>(FontCache, FontCache);
	}
}

FHeadlessSlateRenderer::FHeadlessSlateRenderer()
	: FSlateRenderer(MakeFontServices())
	, TextureManager(MakeUnique<FHeadlessTextureManager>())
{
}

FHeadlessSlateRenderer::~FHeadlessSlateRenderer() = default;

FSlateResourceHandle FHeadlessSlateRenderer::GetResourceHandle(const FSlateBrush& Brush, FVector2f LocalSize, float DrawScale)
{
	return TextureManager->GetResourceHandle(Brush, LocalSize, DrawScale);
}

void FHeadlessSlateRenderer::ReloadTextureResources()
{
	++TextureReloadCount;
	TextureManager->ReleaseTextures();
}
