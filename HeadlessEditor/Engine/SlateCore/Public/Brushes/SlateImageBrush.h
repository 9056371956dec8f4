#pragma once

#include "CoreMinimal.h"
#include "Styling/SlateBrush.h"

/** A brush that draws an image file at a given size. */
struct SLATECORE_API FSlateImageBrush : public FSlateBrush
{
	FSlateImageBrush(const FName& InImageName, const FVector2D& InImageSize, const FLinearColor& InTint = FLinearColor(1, 1, 1, 1), ESlateBrushTileType::Type InTiling = ESlateBrushTileType::NoTile, ESlateBrushImageType::Type InImageType = ESlateBrushImageType::FullColor)
		: FSlateBrush(ESlateBrushDrawType::Image, InImageName, FMargin(0), InTiling, InImageType, InImageSize, InTint)
	{
	}

	FSlateImageBrush(const FString& InImageName, const FVector2D& InImageSize, const FLinearColor& InTint = FLinearColor(1, 1, 1, 1), ESlateBrushTileType::Type InTiling = ESlateBrushTileType::NoTile, ESlateBrushImageType::Type InImageType = ESlateBrushImageType::FullColor)
		: FSlateBrush(ESlateBrushDrawType::Image, FName(*InImageName), FMargin(0), InTiling, InImageType, InImageSize, InTint)
	{
	}

	FSlateImageBrush(const ANSICHAR* InImageName, const FVector2D& InImageSize, const FLinearColor& InTint = FLinearColor(1, 1, 1, 1), ESlateBrushTileType::Type InTiling = ESlateBrushTileType::NoTile, ESlateBrushImageType::Type InImageType = ESlateBrushImageType::FullColor)
		: FSlateBrush(ESlateBrushDrawType::Image, FName(InImageName), FMargin(0), InTiling, InImageType, InImageSize, InTint)
	{
	}

	FSlateImageBrush(const WIDECHAR* InImageName, const FVector2D& InImageSize, const FLinearColor& InTint = FLinearColor(1, 1, 1, 1), ESlateBrushTileType::Type InTiling = ESlateBrushTileType::NoTile, ESlateBrushImageType::Type InImageType = ESlateBrushImageType::FullColor)
		: FSlateBrush(ESlateBrushDrawType::Image, FName(InImageName), FMargin(0), InTiling, InImageType, InImageSize, InTint)
	{
	}

	FSlateImageBrush(const FName& InImageName, const FVector2D& InImageSize, const TSharedRef<FLinearColor>& InTint, ESlateBrushTileType::Type InTiling = ESlateBrushTileType::NoTile, ESlateBrushImageType::Type InImageType = ESlateBrushImageType::FullColor)
		: FSlateBrush(ESlateBrushDrawType::Image, InImageName, FMargin(0), InTiling, InImageType, InImageSize, InTint)
	{
	}

	FSlateImageBrush(const FString& InImageName, const FVector2D& InImageSize, const TSharedRef<FLinearColor>& InTint, ESlateBrushTileType::Type InTiling = ESlateBrushTileType::NoTile, ESlateBrushImageType::Type InImageType = ESlateBrushImageType::FullColor)
		: FSlateBrush(ESlateBrushDrawType::Image, FName(*InImageName), FMargin(0), InTiling, InImageType, InImageSize, InTint)
	{
	}

	FSlateImageBrush(const ANSICHAR* InImageName, const FVector2D& InImageSize, const TSharedRef<FLinearColor>& InTint, ESlateBrushTileType::Type InTiling = ESlateBrushTileType::NoTile, ESlateBrushImageType::Type InImageType = ESlateBrushImageType::FullColor)
		: FSlateBrush(ESlateBrushDrawType::Image, FName(InImageName), FMargin(0), InTiling, InImageType, InImageSize, InTint)
	{
	}

	FSlateImageBrush(const WIDECHAR* InImageName, const FVector2D& InImageSize, const TSharedRef<FLinearColor>& InTint, ESlateBrushTileType::Type InTiling = ESlateBrushTileType::NoTile, ESlateBrushImageType::Type InImageType = ESlateBrushImageType::FullColor)
		: FSlateBrush(ESlateBrushDrawType::Image, FName(InImageName), FMargin(0), InTiling, InImageType, InImageSize, InTint)
	{
	}

	FSlateImageBrush(const FName& InImageName, const FVector2D& InImageSize, const FSlateColor& InTint, ESlateBrushTileType::Type InTiling = ESlateBrushTileType::NoTile, ESlateBrushImageType::Type InImageType = ESlateBrushImageType::FullColor)
		: FSlateBrush(ESlateBrushDrawType::Image, InImageName, FMargin(0), InTiling, InImageType, InImageSize, InTint)
	{
	}

	FSlateImageBrush(const FString& InImageName, const FVector2D& InImageSize, const FSlateColor& InTint, ESlateBrushTileType::Type InTiling = ESlateBrushTileType::NoTile, ESlateBrushImageType::Type InImageType = ESlateBrushImageType::FullColor)
		: FSlateBrush(ESlateBrushDrawType::Image, FName(*InImageName), FMargin(0), InTiling, InImageType, InImageSize, InTint)
	{
	}

	FSlateImageBrush(const ANSICHAR* InImageName, const FVector2D& InImageSize, const FSlateColor& InTint, ESlateBrushTileType::Type InTiling = ESlateBrushTileType::NoTile, ESlateBrushImageType::Type InImageType = ESlateBrushImageType::FullColor)
		: FSlateBrush(ESlateBrushDrawType::Image, FName(InImageName), FMargin(0), InTiling, InImageType, InImageSize, InTint)
	{
	}

	FSlateImageBrush(const WIDECHAR* InImageName, const FVector2D& InImageSize, const FSlateColor& InTint, ESlateBrushTileType::Type InTiling = ESlateBrushTileType::NoTile, ESlateBrushImageType::Type InImageType = ESlateBrushImageType::FullColor)
		: FSlateBrush(ESlateBrushDrawType::Image, FName(InImageName), FMargin(0), InTiling, InImageType, InImageSize, InTint)
	{
	}
};
