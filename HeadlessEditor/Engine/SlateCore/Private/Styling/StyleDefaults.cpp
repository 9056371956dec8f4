#include "Styling/StyleDefaults.h"

#include "Styling/CoreStyle.h"

float FStyleDefaults::DefaultFloat = 0.0f;
FVector2D FStyleDefaults::DefaultFVector2D = FVector2D(0.0, 0.0);
FLinearColor FStyleDefaults::DefaultColor = FLinearColor(1.0f, 1.0f, 1.0f, 1.0f);
FSlateColor FStyleDefaults::DefaultSlateColor = FSlateColor(FLinearColor(1.0f, 1.0f, 1.0f, 1.0f));
FMargin FStyleDefaults::DefaultMargin = FMargin(0.0f);

namespace
{
	/** The brush that draws nothing. */
	struct FNoBrush : public FSlateBrush
	{
		FNoBrush()
			: FSlateBrush(ESlateBrushDrawType::NoDrawType, NAME_None, FMargin(0.0f), ESlateBrushTileType::NoTile, ESlateBrushImageType::NoImage, FVector2D(0.0, 0.0))
		{
		}
	};

	const FNoBrush NoBrushInstance;
}

const FSlateBrush* FStyleDefaults::NoBrush = &NoBrushInstance;

const FSlateFontInfo FStyleDefaults::GetFontInfo(uint16 Size)
{
	return FCoreStyle::GetDefaultFontStyle(TEXT("Regular"), Size);
}
