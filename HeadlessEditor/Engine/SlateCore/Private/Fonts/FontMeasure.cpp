#include "Fonts/FontMeasure.h"

#include "Fonts/FontCache.h"
#include "Fonts/TextShaper.h"

#include <algorithm>

TSharedRef<FSlateFontMeasure> FSlateFontMeasure::Create(const TSharedRef<FSlateFontCache>& FontCache)
{
	return MakeShareable(new FSlateFontMeasure(FontCache));
}

FSlateFontMeasure::FSlateFontMeasure(const TSharedRef<FSlateFontCache>& InFontCache)
	: FontCache(InFontCache)
{
}

FVector2D FSlateFontMeasure::Measure(const FString& Text, const FSlateFontInfo& InFontInfo, float FontScale) const
{
	return Measure(Text, 0, Text.Len(), InFontInfo, false, FontScale);
}

FVector2D FSlateFontMeasure::Measure(const FText& Text, const FSlateFontInfo& InFontInfo, float FontScale) const
{
	return Measure(Text.ToString(), InFontInfo, FontScale);
}

FVector2D FSlateFontMeasure::Measure(const FString& Text, int32 StartIndex, int32 EndIndex, const FSlateFontInfo& InFontInfo, bool IncludeKerningWithPrecedingChar, float FontScale) const
{
	const double LineHeight = FontCache->GetMaxCharacterHeight(InFontInfo, FontScale);
	if (Text.IsEmpty() || StartIndex < 0 || EndIndex <= StartIndex)
	{
		return FVector2D(0.0, LineHeight);
	}
	// Each line is as high as the font; the text is as wide as its widest line.
	const FString Range = Text.Mid(StartIndex, std::min(EndIndex, Text.Len()) - StartIndex);
	double Width = 0.0;
	int32 Lines = 0;
	int32 LineStart = 0;
	for (int32 Index = 0; Index <= Range.Len(); ++Index)
	{
		if (Index == Range.Len() || Range[Index] == TEXT('\n'))
		{
			Width = std::max(Width, FTextShaper::Get().MeasureLine(Range.Mid(LineStart, Index - LineStart), InFontInfo, FontScale).X);
			++Lines;
			LineStart = Index + 1;
		}
	}
	return FVector2D(Width, LineHeight * Lines);
}

uint16 FSlateFontMeasure::GetMaxCharacterHeight(const FSlateFontInfo& InFontInfo, float FontScale) const
{
	return FontCache->GetMaxCharacterHeight(InFontInfo, FontScale);
}

int16 FSlateFontMeasure::GetBaseline(const FSlateFontInfo& InFontInfo, float FontScale) const
{
	return FontCache->GetBaseline(InFontInfo, FontScale);
}
