#pragma once

#include "CoreMinimal.h"
#include "Styling/SlateBrush.h"

/**
 * A brush that fills a box with rounded corners and may outline it. Without a radius the corners are
 * half the box's height, which makes pills of wide boxes.
 */
struct SLATECORE_API FSlateRoundedBoxBrush : public FSlateBrush
{
	template <typename FillColorType>
	FSlateRoundedBoxBrush(const FillColorType& InColor, const FVector2D& InImageSize = FVector2D::ZeroVector)
		: FSlateBrush(ESlateBrushDrawType::RoundedBox, NAME_None, FMargin(0.0f), ESlateBrushTileType::NoTile, ESlateBrushImageType::NoImage, InImageSize, InColor)
	{
	}

	template <typename FillColorType, typename RadiusType>
	FSlateRoundedBoxBrush(const FillColorType& InColor, RadiusType InRadius, const FVector2D& InImageSize = FVector2D::ZeroVector)
		: FSlateBrush(ESlateBrushDrawType::RoundedBox, NAME_None, FMargin(0.0f), ESlateBrushTileType::NoTile, ESlateBrushImageType::NoImage, InImageSize, InColor)
	{
		OutlineSettings = FSlateBrushOutlineSettings(InRadius);
	}

	template <typename FillColorType, typename OutlineColorType>
	FSlateRoundedBoxBrush(const FillColorType& InColor, const OutlineColorType& InOutlineColor, float InOutlineWidth, const FVector2D& InImageSize = FVector2D::ZeroVector)
		: FSlateBrush(ESlateBrushDrawType::RoundedBox, NAME_None, FMargin(0.0f), ESlateBrushTileType::NoTile, ESlateBrushImageType::NoImage, InImageSize, InColor)
	{
		OutlineSettings = FSlateBrushOutlineSettings(InOutlineColor, InOutlineWidth);
	}

	template <typename FillColorType, typename RadiusType, typename OutlineColorType>
	FSlateRoundedBoxBrush(const FillColorType& InColor, RadiusType InRadius, const OutlineColorType& InOutlineColor, float InOutlineWidth, const FVector2D& InImageSize = FVector2D::ZeroVector)
		: FSlateBrush(ESlateBrushDrawType::RoundedBox, NAME_None, FMargin(0.0f), ESlateBrushTileType::NoTile, ESlateBrushImageType::NoImage, InImageSize, InColor)
	{
		OutlineSettings = FSlateBrushOutlineSettings(InRadius, InOutlineColor, InOutlineWidth);
	}
};
