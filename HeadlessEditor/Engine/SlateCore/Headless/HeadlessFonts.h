#pragma once

#include "CoreMinimal.h"
#include "Fonts/SlateFontInfo.h"

typedef struct _cairo cairo_t;

/** Headless editor only: text drawn as the font measure laid it out, for renderers that make pictures. */
namespace UE::Headless
{
	/** Draws one line of text with the top-left corner of its line box at the current point, in the current source. */
	SLATECORE_API void DrawTextLine(cairo_t* Context, const FString& Text, const FSlateFontInfo& Font, float FontScale);
}
