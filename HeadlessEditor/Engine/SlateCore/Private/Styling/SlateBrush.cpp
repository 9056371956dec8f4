#include "Styling/SlateBrush.h"

FSlateBrush::FSlateBrush()
	: ImageSize(32.0, 32.0)
	, Margin(0.0f)
	, TintColor(FLinearColor::White)
	, DrawAs(ESlateBrushDrawType::Image)
	, Tiling(ESlateBrushTileType::NoTile)
	, ImageType(ESlateBrushImageType::NoImage)
{
}

FSlateBrush::FSlateBrush(ESlateBrushDrawType::Type InDrawType, const FName InResourceName, const FMargin& InMargin, ESlateBrushTileType::Type InTiling, ESlateBrushImageType::Type InImageType, const FVector2D& InImageSize, const FLinearColor& InTint)
	: ImageSize(InImageSize)
	, Margin(InMargin)
	, TintColor(InTint)
	, DrawAs(InDrawType)
	, Tiling(InTiling)
	, ImageType(InImageType)
	, ResourceName(InResourceName)
{
}

FSlateBrush::FSlateBrush(ESlateBrushDrawType::Type InDrawType, const FName InResourceName, const FMargin& InMargin, ESlateBrushTileType::Type InTiling, ESlateBrushImageType::Type InImageType, const FVector2D& InImageSize, const TSharedRef<FLinearColor>& InTint)
	: ImageSize(InImageSize)
	, Margin(InMargin)
	, TintColor(InTint)
	, DrawAs(InDrawType)
	, Tiling(InTiling)
	, ImageType(InImageType)
	, ResourceName(InResourceName)
{
}

FSlateBrush::FSlateBrush(ESlateBrushDrawType::Type InDrawType, const FName InResourceName, const FMargin& InMargin, ESlateBrushTileType::Type InTiling, ESlateBrushImageType::Type InImageType, const FVector2D& InImageSize, const FSlateColor& InTint)
	: ImageSize(InImageSize)
	, Margin(InMargin)
	, TintColor(InTint)
	, DrawAs(InDrawType)
	, Tiling(InTiling)
	, ImageType(InImageType)
	, ResourceName(InResourceName)
{
}
