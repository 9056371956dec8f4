#pragma once

#include "CoreMinimal.h"
#include "Fonts/SlateFontInfo.h"

typedef struct _cairo cairo_t;
typedef struct _PangoContext PangoContext;
typedef struct _PangoFontMap PangoFontMap;
typedef struct _PangoLayout PangoLayout;

/**
 * Lays text out with Pango, as text is measured and drawn in the whole process: one font map, the
 * system's fonts through fontconfig, fixed font options (slight hinting with hinted metrics, grey
 * antialiasing, no subpixel order), so that measuring and drawing agree and repeat exactly.
 */
class FTextShaper
{
public:
	static FTextShaper& Get();

	~FTextShaper();

	/** The logical size of one line of text, in pixels; only the width depends on the text. */
	FVector2D MeasureLine(const FString& Text, const FSlateFontInfo& Font, float FontScale) const;
	/** The ascent plus the descent of the font, in pixels. */
	uint16 GetLineHeight(const FSlateFontInfo& Font, float FontScale) const;
	/** The descent of the font, in pixels. */
	int16 GetDescent(const FSlateFontInfo& Font, float FontScale) const;

	/** Draws one line of text with its logical top-left corner at the current point, in the current source. */
	void DrawLine(cairo_t* Context, const FString& Text, const FSlateFontInfo& Font, float FontScale) const;

private:
	FTextShaper();

	/** A Pango layout of one line in the font; the caller unrefs it. */
	PangoLayout* MakeLayout(const FString& Text, const FSlateFontInfo& Font, float FontScale) const;

	PangoFontMap* FontMap;
	PangoContext* Context;
};
