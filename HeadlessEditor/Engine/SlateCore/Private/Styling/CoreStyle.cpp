#include "Styling/CoreStyle.h"

#include "Styling/SlateStyle.h"

namespace
{
	FSlateStyleSet& GetCoreStyleInstance()
	{
		static FSlateStyleSet Instance(TEXT("CoreStyle"));
		return Instance;
	}
}

const ISlateStyle& FCoreStyle::Get()
{
	return GetCoreStyleInstance();
}

FSlateFontInfo FCoreStyle::GetDefaultFontStyle(const FName InTypefaceFontName, const int32 InSize, const FFontOutlineSettings& InOutlineSettings)
{
	return FSlateFontInfo(InTypefaceFontName, InSize, InOutlineSettings);
}

bool FCoreStyle::IsInitialized()
{
	return true;
}
