#pragma once

#include "CoreMinimal.h"
#include "Styling/SlateBrush.h"

/** A brush that fills its area with a colour. */
struct SLATECORE_API FSlateColorBrush : public FSlateBrush
{
	FSlateColorBrush(const FLinearColor& InColor)
		: FSlateBrush(ESlateBrushDrawType::Image, NAME_None, FMargin(0.0f), ESlateBrushTileType::NoTile, ESlateBrushImageType::NoImage, FVector2D::ZeroVector, InColor)
	{
	}

	FSlateColorBrush(const FColor& InColor)
		: FSlateBrush(ESlateBrushDrawType::Image, NAME_None, FMargin(0.0f), ESlateBrushTileType::NoTile, ESlateBrushImageType::NoImage, FVector2D::ZeroVector, FLinearColor(InColor))
	{
	}

	FSlateColorBrush(const TSharedRef<FLinearColor>& InColor)
		: FSlateBrush(ESlateBrushDrawType::Image, NAME_None, FMargin(0.0f), ESlateBrushTileType::NoTile, ESlateBrushImageType::NoImage, FVector2D::ZeroVector, InColor)
	{
	}

	FSlateColorBrush(const FSlateColor& InColor)
		: FSlateBrush(ESlateBrushDrawType::Image, NAME_None, FMargin(0.0f), ESlateBrushTileType::NoTile, ESlateBrushImageType::NoImage, FVector2D::ZeroVector, InColor)
	{
	}
};
