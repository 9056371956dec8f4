#pragma once

#include "CoreMinimal.h"
#include "Styling/SlateBrush.h"

/** A brush that draws only the edges of an image, stretched as a 3x3 box: the margin says how wide each edge is. */
struct SLATECORE_API FSlateBorderBrush : public FSlateBrush
{
	FSlateBorderBrush(const FName& InImageName, const FMargin& InMargin, const FLinearColor& InColorAndOpacity = FLinearColor(1, 1, 1, 1), ESlateBrushImageType::Type InImageType = ESlateBrushImageType::FullColor)
		: FSlateBrush(ESlateBrushDrawType::Border, InImageName, InMargin, ESlateBrushTileType::NoTile, InImageType, FVector2D(32, 32), InColorAndOpacity)
	{
	}

	FSlateBorderBrush(const FString& InImageName, const FMargin& InMargin, const FLinearColor& InColorAndOpacity = FLinearColor(1, 1, 1, 1), ESlateBrushImageType::Type InImageType = ESlateBrushImageType::FullColor)
		: FSlateBrush(ESlateBrushDrawType::Border, FName(*InImageName), InMargin, ESlateBrushTileType::NoTile, InImageType, FVector2D(32, 32), InColorAndOpacity)
	{
	}
};
