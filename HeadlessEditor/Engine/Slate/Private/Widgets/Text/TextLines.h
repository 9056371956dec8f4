#pragma once

#include "CoreMinimal.h"
#include "Fonts/SlateFontInfo.h"

class FSlateFontMeasure;

/** One line of laid-out text. */
struct FTextLine
{
	FString Text;
	/** The line's width in pixels at the scale it was measured at. */
	float Width = 0.0f;
};

/**
 * Breaks text into lines: at each line break, and, when WrapWidth is above zero, wherever the next
 * word would not fit. Words break at spaces and around CJK characters; a word longer than the width
 * keeps a line of its own. Spaces that end a wrapped line are not part of it.
 */
TArray<FTextLine> BreakTextIntoLines(const FString& Text, const FSlateFontInfo& Font, float FontScale, float WrapWidth, const FSlateFontMeasure& FontMeasure);
