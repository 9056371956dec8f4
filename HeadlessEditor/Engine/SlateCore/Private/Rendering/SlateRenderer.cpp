#include "Rendering/SlateRenderer.h"

#include "Fonts/FontCache.h"
#include "Fonts/FontMeasure.h"

FSlateFontServices::FSlateFontServices(TSharedRef<FSlateFontCache> InGameThreadFontCache, TSharedRef<FSlateFontCache> InRenderThreadFontCache)
	: GameThreadFontCache(InGameThreadFontCache)
	, RenderThreadFontCache(InRenderThreadFontCache)
	, GameThreadFontMeasure(FSlateFontMeasure::Create(GameThreadFontCache))
	, RenderThreadFontMeasure(GameThreadFontCache == RenderThreadFontCache ? GameThreadFontMeasure : FSlateFontMeasure::Create(RenderThreadFontCache))
{
}

FSlateFontServices::~FSlateFontServices() = default;

TSharedRef<FSlateFontCache> FSlateFontServices::GetFontCache() const
{
	return GameThreadFontCache;
}

TSharedRef<FSlateFontMeasure> FSlateFontServices::GetFontMeasureService() const
{
	return GameThreadFontMeasure;
}

FSlateRenderer::FSlateRenderer(const TSharedRef<FSlateFontServices>& InSlateFontServices)
	: SlateFontServices(InSlateFontServices)
{
}

FSlateRenderer::~FSlateRenderer() = default;

TSharedRef<FSlateFontMeasure> FSlateRenderer::GetFontMeasureService() const
{
	return SlateFontServices->GetFontMeasureService();
}

TSharedRef<FSlateFontCache> FSlateRenderer::GetFontCache() const
{
	return SlateFontServices->GetFontCache();
}
