#pragma once

#include "CoreMinimal.h"
#include "Styling/SlateBrush.h"

/** A brush that stretches an image as a 3x3 box: the corners keep their size, the margin says where they end. */
struct SLATECORE_API FSlateBoxBrush : public FSlateBrush
{
	FSlateBoxBrush(const FName& InImageName, const FMargin& InMargin, const FLinearColor& InColorAndOpacity = FLinearColor(1, 1, 1, 1), ESlateBrushImageType::Type InImageType = ESlateBrushImageType::FullColor)
		: FSlateBrush(ESlateBrushDrawType::Box, InImageName, InMargin, ESlateBrushTileType::NoTile, InImageType, FVector2D(32, 32), InColorAndOpacity)
	{
	}

	FSlateBoxBrush(const FString& InImageName, const FMargin& InMargin, const FLinearColor& InColorAndOpacity = FLinearColor(1, 1, 1, 1), ESlateBrushImageType::Type InImageType = ESlateBrushImageType::FullColor)
		: FSlateBrush(ESlateBrushDrawType::Box, FName(*InImageName), InMargin, ESlateBrushTileType::NoTile, InImageType, FVector2D(32, 32), InColorAndOpacity)
	{
	}

	FSlateBoxBrush(const FString& InImageName, const FMargin& InMargin, const FSlateColor& InColorAndOpacity, ESlateBrushImageType::Type InImageType = ESlateBrushImageType::FullColor)
		: FSlateBrush(ESlateBrushDrawType::Box, FName(*InImageName), InMargin, ESlateBrushTileType::NoTile, InImageType, FVector2D(32, 32), InColorAndOpacity)
	{
	}

	FSlateBoxBrush(const FString& InImageName, const FVector2D& InImageSize, const FMargin& InMargin, const FLinearColor& InColorAndOpacity = FLinearColor(1, 1, 1, 1), ESlateBrushImageType::Type InImageType = ESlateBrushImageType::FullColor)
		: FSlateBrush(ESlateBrushDrawType::Box, FName(*InImageName), InMargin, ESlateBrushTileType::NoTile, InImageType, InImageSize, InColorAndOpacity)
	{
	}
};
