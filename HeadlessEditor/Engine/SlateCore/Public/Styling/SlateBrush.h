#pragma once

#include "CoreMinimal.h"
#include "Layout/Margin.h"
#include "Styling/SlateColor.h"

namespace ESlateBrushDrawType
{
	enum Type : int
	{
		/** Don't do anything */
		NoDrawType,
		/** Draw a 3x3 box, where the sides and the middle stretch based on the Margin */
		Box,
		/** Draw a 3x3 border where the sides tile and the middle is empty */
		Border,
		/** Draw an image; margin is ignored */
		Image,
		/** Draw a solid rectangle with an outline and corner radius */
		RoundedBox
	};
}

namespace ESlateBrushTileType
{
	enum Type : int
	{
		/** Just stretch */
		NoTile,
		/** Tile the image horizontally */
		Horizontal,
		/** Tile the image vertically */
		Vertical,
		/** Tile in both directions */
		Both
	};
}

namespace ESlateBrushImageType
{
	enum Type : int
	{
		/** No image is loaded.  Color only brushes, transparent brushes etc */
		NoImage,
		/** The image to be loaded is in full color */
		FullColor,
		/** The image is a special texture in linear space (usually a rendering resource such as a lookup table)*/
		Linear,
		/** The image is vector graphics and will be rendered and cached in linear space */
		Vector
	};
}

/** How to draw an image or a box: the resource to draw, its size, tint and drawing mode. */
struct SLATECORE_API FSlateBrush
{
	FSlateBrush();
	virtual ~FSlateBrush() = default;

	/** Size of the resource in Slate Units */
	FVector2D ImageSize;

	/** The margin to use in Box and Border modes */
	FMargin Margin;

	/** Tinting applied to the image. */
	FSlateColor TintColor;

	/** How to draw the image */
	ESlateBrushDrawType::Type DrawAs;

	/** How to tile the image in Image mode */
	ESlateBrushTileType::Type Tiling;

	/** The type of image */
	ESlateBrushImageType::Type ImageType;

	FVector2D GetImageSize() const { return ImageSize; }
	void SetImageSize(FVector2D InImageSize) { ImageSize = InImageSize; }

	/** The name of the rendering resource to use: for an image brush, the image file's path. */
	const FName GetResourceName() const { return ResourceName; }

	bool operator==(const FSlateBrush& Other) const { return ImageSize == Other.ImageSize && DrawAs == Other.DrawAs && Margin == Other.Margin && TintColor == Other.TintColor && Tiling == Other.Tiling && ImageType == Other.ImageType && ResourceName == Other.ResourceName; }
	bool operator!=(const FSlateBrush& Other) const { return !(*this == Other); }

protected:
	FSlateBrush(ESlateBrushDrawType::Type InDrawType, const FName InResourceName, const FMargin& InMargin, ESlateBrushTileType::Type InTiling, ESlateBrushImageType::Type InImageType, const FVector2D& InImageSize, const FLinearColor& InTint = FLinearColor(1.0f, 1.0f, 1.0f, 1.0f));
	FSlateBrush(ESlateBrushDrawType::Type InDrawType, const FName InResourceName, const FMargin& InMargin, ESlateBrushTileType::Type InTiling, ESlateBrushImageType::Type InImageType, const FVector2D& InImageSize, const TSharedRef<FLinearColor>& InTint);
	FSlateBrush(ESlateBrushDrawType::Type InDrawType, const FName InResourceName, const FMargin& InMargin, ESlateBrushTileType::Type InTiling, ESlateBrushImageType::Type InImageType, const FVector2D& InImageSize, const FSlateColor& InTint);

	/** The image to render for this brush */
	FName ResourceName;
};
