#pragma once

#include "CoreMinimal.h"
#include "Layout/Margin.h"
#include "Styling/SlateBrush.h"

/** A brush that draws nothing, but may still have a size. */
struct SLATECORE_API FSlateNoResource : public FSlateBrush
{
	FSlateNoResource(const FVector2D& InImageSize = FVector2D::ZeroVector)
		: FSlateBrush(ESlateBrushDrawType::NoDrawType, FName(NAME_None), FMargin(0), ESlateBrushTileType::NoTile, ESlateBrushImageType::NoImage, InImageSize)
	{
	}
};

/** A brush that draws nothing and tells a style it was not set, so that the style's own brush is used. */
struct SLATECORE_API FSlateOptionalBrush : public FSlateBrush
{
	FSlateOptionalBrush(const FVector2D& InImageSize = FVector2D::ZeroVector)
		: FSlateBrush(ESlateBrushDrawType::NoDrawType, FName(NAME_None), FMargin(0), ESlateBrushTileType::NoTile, ESlateBrushImageType::NoImage, InImageSize)
	{
		bIsSet = false;
	}
};
