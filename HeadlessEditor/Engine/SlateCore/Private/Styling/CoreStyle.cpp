#include "Styling/CoreStyle.h"

#include "Styling/SlateStyle.h"

namespace
{
	FSlateStyleSet& GetCoreStyleInstance()
	{
		static FSlateStyleSet Instance(TEXT("CoreStyle"));
		static const bool bFontsSet = [&]()
		{
			// The editor's app style carries the details panel fonts.
			Instance.Set(TEXT("PropertyWindow.NormalFont"), FCoreStyle::GetDefaultFontStyle(TEXT("Regular"), 8));
			Instance.Set(TEXT("PropertyWindow.BoldFont"), FCoreStyle::GetDefaultFontStyle(TEXT("Bold"), 8));
			Instance.Set(TEXT("PropertyWindow.ItalicFont"), FCoreStyle::GetDefaultFontStyle(TEXT("Italic"), 8));
			return true;
		}();
		(void)bFontsSet;
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
