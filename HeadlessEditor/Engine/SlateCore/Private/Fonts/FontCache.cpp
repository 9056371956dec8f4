#include "Fonts/FontCache.h"

#include "Fonts/TextShaper.h"

FSlateFontCache::FSlateFontCache(TSharedRef<ISlateFontAtlasFactory> InFontAtlasFactory, ESlateTextureAtlasThreadId InOwningThread)
	: FontAtlasFactory(InFontAtlasFactory)
	, OwningThread(InOwningThread)
{
}

FSlateFontCache::~FSlateFontCache() = default;

uint16 FSlateFontCache::GetMaxCharacterHeight(const FSlateFontInfo& InFontInfo, float FontScale) const
{
	return FTextShaper::Get().GetLineHeight(InFontInfo, FontScale);
}

int16 FSlateFontCache::GetBaseline(const FSlateFontInfo& InFontInfo, float FontScale) const
{
	return -FTextShaper::Get().GetDescent(InFontInfo, FontScale);
}
