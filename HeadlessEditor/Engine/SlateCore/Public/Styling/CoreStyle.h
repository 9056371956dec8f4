#pragma once

#include "CoreMinimal.h"
#include "Fonts/SlateFontInfo.h"

class ISlateStyle;

/** The engine's core style set and its default font. */
class SLATECORE_API FCoreStyle
{
public:
	/** The core style set; the headless editor makes it on first use. */
	static const ISlateStyle& Get();

	/** The editor's font family: Roboto, in the typefaces the engine names. */
	static TSharedRef<const FCompositeFont> GetDefaultFont();

	/** The default font family at the given typeface ("Regular", "Bold", "Italic"...) and size. */
	static FSlateFontInfo GetDefaultFontStyle(const FName InTypefaceFontName, const int32 InSize, const FFontOutlineSettings& InOutlineSettings = FFontOutlineSettings());

	static bool IsInitialized();
};
