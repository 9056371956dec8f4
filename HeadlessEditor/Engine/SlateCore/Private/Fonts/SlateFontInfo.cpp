#include "Fonts/SlateFontInfo.h"

const FFontOutlineSettings FFontOutlineSettings::NoOutline;

FSlateFontInfo::FSlateFontInfo()
	: Size(24)
{
}

FSlateFontInfo::FSlateFontInfo(TSharedPtr<const FCompositeFont> InCompositeFont, const int32 InSize, const FName& InTypefaceFontName, const FFontOutlineSettings& InOutlineSettings)
	: CompositeFont(InCompositeFont)
	, TypefaceFontName(InTypefaceFontName)
	, Size(InSize)
	, OutlineSettings(InOutlineSettings)
{
}
