#pragma once

#include "CoreMinimal.h"
#include "Fonts/SlateFontInfo.h"
#include "Styling/SlateBrush.h"

/** Values a style lookup falls back to when the key is missing. */
class SLATECORE_API FStyleDefaults
{
public:
	static float GetFloat() { return DefaultFloat; }
	static const FVector2D GetVector2D() { return DefaultFVector2D; }
	static const FLinearColor& GetColor() { return DefaultColor; }
	static const FSlateColor& GetSlateColor() { return DefaultSlateColor; }
	static const FMargin& GetMargin() { return DefaultMargin; }
	static const FSlateBrush* GetNoBrush() { return NoBrush; }
	static const FSlateFontInfo GetFontInfo(uint16 Size = 10);

private:
	static float DefaultFloat;
	static FVector2D DefaultFVector2D;
	static FLinearColor DefaultColor;
	static FSlateColor DefaultSlateColor;
	static FMargin DefaultMargin;
	static const FSlateBrush* NoBrush;
};
