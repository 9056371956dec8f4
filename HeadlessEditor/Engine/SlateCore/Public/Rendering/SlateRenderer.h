#pragma once

#include "CoreMinimal.h"
#include "Textures/SlateShaderResource.h"

class FSlateFontCache;
struct FSlateBrush;
class FSlateFontMeasure;

/** The font caches and measures of a renderer: the game thread's measures what widgets lay out. */
class SLATECORE_API FSlateFontServices
{
public:
	FSlateFontServices(TSharedRef<FSlateFontCache> InGameThreadFontCache, TSharedRef<FSlateFontCache> InRenderThreadFontCache);
	~FSlateFontServices();

	/** The font cache of the calling thread; the headless editor has only the game thread. */
	TSharedRef<FSlateFontCache> GetFontCache() const;
	TSharedRef<FSlateFontCache> GetGameThreadFontCache() const { return GameThreadFontCache; }
	TSharedRef<FSlateFontCache> GetRenderThreadFontCache() const { return RenderThreadFontCache; }

	TSharedRef<FSlateFontMeasure> GetFontMeasureService() const;
	TSharedRef<FSlateFontMeasure> GetGameThreadFontMeasureService() const { return GameThreadFontMeasure; }
	TSharedRef<FSlateFontMeasure> GetRenderThreadFontMeasureService() const { return RenderThreadFontMeasure; }

private:
	TSharedRef<FSlateFontCache> GameThreadFontCache;
	TSharedRef<FSlateFontCache> RenderThreadFontCache;
	TSharedRef<FSlateFontMeasure> GameThreadFontMeasure;
	TSharedRef<FSlateFontMeasure> RenderThreadFontMeasure;
};

/** Draws Slate's windows, and gives widgets the fonts services they measure text with. */
class SLATECORE_API FSlateRenderer
{
public:
	explicit FSlateRenderer(const TSharedRef<FSlateFontServices>& InSlateFontServices);
	virtual ~FSlateRenderer();

	TSharedRef<FSlateFontServices> GetFontServices() const { return SlateFontServices.ToSharedRef(); }
	TSharedRef<FSlateFontMeasure> GetFontMeasureService() const;
	TSharedRef<FSlateFontCache> GetFontCache() const;

	/** A handle on the texture a brush draws, loading it the first time. */
	virtual FSlateResourceHandle GetResourceHandle(const FSlateBrush& Brush, FVector2f LocalSize, float DrawScale) = 0;
	virtual FSlateResourceHandle GetResourceHandle(const FSlateBrush& Brush) { return GetResourceHandle(Brush, FVector2f(0.0f, 0.0f), 1.0f); }

	/** Reloads all texture resources from disk; does nothing by default. */
	virtual void ReloadTextureResources() {}

private:
	FSlateRenderer(const FSlateRenderer&);
	FSlateRenderer& operator=(const FSlateRenderer&);

protected:
	TSharedPtr<FSlateFontServices> SlateFontServices;
};
