#pragma once

#include "CoreMinimal.h"
#include "Fonts/FontTypes.h"
#include "Fonts/SlateFontInfo.h"
#include "Textures/TextureAtlas.h"

/**
 * Shapes and measures text in the fonts widgets name. The headless editor shapes with Pango over the
 * system's fonts, at Slate's sizes: a font size is in points at 96 dots per inch.
 */
class SLATECORE_API FSlateFontCache
{
public:
	FSlateFontCache(TSharedRef<ISlateFontAtlasFactory> InFontAtlasFactory, ESlateTextureAtlasThreadId InOwningThread);
	virtual ~FSlateFontCache();

	/** The height of a line of text in the font: its ascent and descent, in pixels. */
	uint16 GetMaxCharacterHeight(const FSlateFontInfo& InFontInfo, float FontScale) const;

	/** Where the baseline lies above the bottom of a line: minus the font's descent, in pixels. */
	int16 GetBaseline(const FSlateFontInfo& InFontInfo, float FontScale) const;

private:
	FSlateFontCache(const FSlateFontCache&);
	FSlateFontCache& operator=(const FSlateFontCache&);

	TSharedRef<ISlateFontAtlasFactory> FontAtlasFactory;
	ESlateTextureAtlasThreadId OwningThread;
};
