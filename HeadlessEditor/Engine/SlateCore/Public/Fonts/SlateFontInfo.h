#pragma once

#include "CoreMinimal.h"
#include "Fonts/CompositeFont.h"

/** Settings for an outline drawn around text. */
struct SLATECORE_API FFontOutlineSettings
{
	/** Size of the outline in slate units (at 1.0 font scale this unit is a pixel) */
	int32 OutlineSize;

	/** The color of the outline for any character in this font */
	FLinearColor OutlineColor;

	FFontOutlineSettings()
		: OutlineSize(0)
		, OutlineColor(FLinearColor::Black)
	{
	}

	FFontOutlineSettings(int32 InOutlineSize, FLinearColor InColor = FLinearColor::Black)
		: OutlineSize(InOutlineSize)
		, OutlineColor(InColor)
	{
	}

	bool IsIdenticalTo(const FFontOutlineSettings& Other) const { return OutlineSize == Other.OutlineSize && OutlineColor == Other.OutlineColor; }

	static const FFontOutlineSettings NoOutline;
};

/** A font: which typeface of the font family to use, at which size. */
struct SLATECORE_API FSlateFontInfo
{
	/** The font family; the core style's default family unless set. */
	TSharedPtr<const FCompositeFont> CompositeFont;

	/** The name of the font to use from the default typeface (None will use the first entry) */
	FName TypefaceFontName;

	/** The font size is a measure in point values. */
	int32 Size;

	/** The uniform spacing (or tracking) between all characters in the text. */
	int32 LetterSpacing = 0;

	/** Settings for applying an outline to a font */
	FFontOutlineSettings OutlineSettings;

	FSlateFontInfo();

	/** A typeface of a font family at a size. */
	FSlateFontInfo(TSharedPtr<const FCompositeFont> InCompositeFont, const int32 InSize, const FName& InTypefaceFontName = NAME_None, const FFontOutlineSettings& InOutlineSettings = FFontOutlineSettings());

	/** Whether this font info is the same font, typeface, size and outline as another. */
	bool IsIdenticalTo(const FSlateFontInfo& Other) const { return CompositeFont == Other.CompositeFont && TypefaceFontName == Other.TypefaceFontName && Size == Other.Size && LetterSpacing == Other.LetterSpacing && OutlineSettings.IsIdenticalTo(Other.OutlineSettings); }

	/** Whether the font names a font family to draw with. */
	bool HasValidFont() const { return CompositeFont.IsValid(); }
	/** The font family to draw with. */
	const FCompositeFont* GetCompositeFont() const { return CompositeFont.Get(); }

	bool operator==(const FSlateFontInfo& Other) const { return IsIdenticalTo(Other); }
	bool operator!=(const FSlateFontInfo& Other) const { return !IsIdenticalTo(Other); }
};
