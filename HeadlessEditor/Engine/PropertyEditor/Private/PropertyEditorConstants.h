#pragma once

#include "CoreMinimal.h"
#include "Styling/SlateColor.h"

/** The metrics and colours every details panel row shares. */
class PropertyEditorConstants
{
public:
	/** The font of property names and values. */
	static const FName PropertyFontStyle;
	/** The font of category headers. */
	static const FName CategoryFontStyle;

	/** The height a row takes at least. */
	static constexpr float PropertyRowHeight = 26.0f;

	/** A row's background at an indent level: each level a little lighter than the last, back and forth over four shades; lighter again when hovered. */
	static FSlateColor GetRowBackgroundColor(int32 IndentLevel, bool IsHovered);
};
