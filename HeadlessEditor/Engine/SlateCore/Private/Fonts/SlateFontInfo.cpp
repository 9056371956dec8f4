#include "Fonts/SlateFontInfo.h"

const FFontOutlineSettings FFontOutlineSettings::NoOutline;

FSlateFontInfo::FSlateFontInfo()
	: Size(24)
{
}

FSlateFontInfo::FSlateFontInfo(const FName& InTypefaceFontName, const int32 InSize, const FFontOutlineSettings& InOutlineSettings)
	: TypefaceFontName(InTypefaceFontName)
	, Size(InSize)
	, OutlineSettings(InOutlineSettings)
{
}
