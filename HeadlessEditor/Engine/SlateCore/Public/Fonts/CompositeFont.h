#pragma once

#include "CoreMinimal.h"

/** One typeface of a font family, such as "Bold". */
struct SLATECORE_API FTypefaceEntry
{
	FTypefaceEntry() {}

	FTypefaceEntry(const FName& InFontName)
		: Name(InFontName)
	{
	}

	/** Name used to identify this font within its typeface */
	FName Name;
};

/** The typefaces of a font family. */
struct SLATECORE_API FTypeface
{
	FTypeface() {}

	/** The fonts contained within this family */
	TArray<FTypefaceEntry> Fonts;
};

/**
 * A font family made of typefaces. The headless editor draws with the fonts the system has: the
 * default family is Roboto, as the engine's, and characters Roboto lacks (Japanese, Chinese...) come
 * from the system's fallback fonts.
 */
struct SLATECORE_API FCompositeFont
{
	FCompositeFont() {}

	/** The default typeface that will be used when not overridden by a sub-typeface */
	FTypeface DefaultTypeface;
};
