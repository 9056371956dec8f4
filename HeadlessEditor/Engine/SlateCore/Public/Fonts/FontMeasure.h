#pragma once

#include "CoreMinimal.h"
#include "Fonts/SlateFontInfo.h"

class FSlateFontCache;

/** Measures how much room text takes in a font. */
class SLATECORE_API FSlateFontMeasure
{
public:
	static TSharedRef<FSlateFontMeasure> Create(const TSharedRef<FSlateFontCache>& FontCache);

	virtual ~FSlateFontMeasure() {}

	/**
	 * The size of the text: the width of its longest line and the height of its lines, each line as
	 * high as the font's tallest character. Empty text is one empty line.
	 */
	virtual FVector2D Measure(const FString& Text, const FSlateFontInfo& InFontInfo, float FontScale = 1.0f) const;
	virtual FVector2D Measure(const FText& Text, const FSlateFontInfo& InFontInfo, float FontScale = 1.0f) const;
	/** The size of the characters from StartIndex up to EndIndex. */
	virtual FVector2D Measure(const FString& Text, int32 StartIndex, int32 EndIndex, const FSlateFontInfo& InFontInfo, bool IncludeKerningWithPrecedingChar = true, float FontScale = 1.0f) const;

	uint16 GetMaxCharacterHeight(const FSlateFontInfo& InFontInfo, float FontScale = 1.0f) const;
	int16 GetBaseline(const FSlateFontInfo& InFontInfo, float FontScale = 1.0f) const;

private:
	FSlateFontMeasure(const TSharedRef<FSlateFontCache>& InFontCache);

	TSharedRef<FSlateFontCache> FontCache;
};
