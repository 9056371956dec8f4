#pragma once

#include "CoreMinimal.h"
#include "Layout/Margin.h"
#include "Styling/SlateColor.h"
#include "Textures/SlateShaderResource.h"

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

namespace ESlateBrushRoundingType
{
	enum Type : int
	{
		/** Use the specified Radius */
		FixedRadius,
		/** Use the 1/2 of the respective height of the element to draw the corner radius */
		HalfHeightRadius
	};
}

/** The corners and outline of a rounded box brush. */
struct SLATECORE_API FSlateBrushOutlineSettings
{
	FSlateBrushOutlineSettings()
		: CornerRadii(0.0)
		, Color(FLinearColor::Transparent)
		, Width(0.0f)
		, RoundingType(ESlateBrushRoundingType::HalfHeightRadius)
		, bUseBrushTransparency(false)
	{
	}

	FSlateBrushOutlineSettings(float InUniformRadius)
		: CornerRadii(FVector4(InUniformRadius, InUniformRadius, InUniformRadius, InUniformRadius))
		, Color(FLinearColor::Transparent)
		, Width(0.0f)
		, RoundingType(ESlateBrushRoundingType::FixedRadius)
		, bUseBrushTransparency(false)
	{
	}

	FSlateBrushOutlineSettings(FVector4 InRadius)
		: CornerRadii(InRadius)
		, Color(FLinearColor::Transparent)
		, Width(0.0f)
		, RoundingType(ESlateBrushRoundingType::FixedRadius)
		, bUseBrushTransparency(false)
	{
	}

	FSlateBrushOutlineSettings(const FSlateColor& InColor, float InWidth)
		: CornerRadii(0.0)
		, Color(InColor)
		, Width(InWidth)
		, RoundingType(ESlateBrushRoundingType::HalfHeightRadius)
		, bUseBrushTransparency(false)
	{
	}

	FSlateBrushOutlineSettings(float InUniformRadius, const FSlateColor& InColor, float InWidth)
		: CornerRadii(FVector4(InUniformRadius, InUniformRadius, InUniformRadius, InUniformRadius))
		, Color(InColor)
		, Width(InWidth)
		, RoundingType(ESlateBrushRoundingType::FixedRadius)
		, bUseBrushTransparency(false)
	{
	}

	FSlateBrushOutlineSettings(FVector4 InRadius, const FSlateColor& InColor, float InWidth)
		: CornerRadii(InRadius)
		, Color(InColor)
		, Width(InWidth)
		, RoundingType(ESlateBrushRoundingType::FixedRadius)
		, bUseBrushTransparency(false)
	{
	}

	/** The radius of each corner: top left, top right, bottom right, bottom left. */
	FVector4 CornerRadii;
	/** The colour of the outline */
	FSlateColor Color;
	/** The thickness of the outline */
	float Width;
	/** Whether the corners are the radii given or half the box's height */
	ESlateBrushRoundingType::Type RoundingType;
	/** Whether the outline fades with the brush's fill */
	bool bUseBrushTransparency;
};

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

	/** How to draw the outline of a rounded box. */
	FSlateBrushOutlineSettings OutlineSettings;

	/** How to draw the image */
	ESlateBrushDrawType::Type DrawAs;

	/** How to tile the image in Image mode */
	ESlateBrushTileType::Type Tiling;

	/** The type of image */
	ESlateBrushImageType::Type ImageType;

	FVector2D GetImageSize() const { return ImageSize; }
	void SetImageSize(FVector2D InImageSize) { ImageSize = InImageSize; }
	const FMargin& GetMargin() const { return Margin; }
	ESlateBrushTileType::Type GetTiling() const { return Tiling; }
	ESlateBrushDrawType::Type GetDrawType() const { return DrawAs; }
	ESlateBrushImageType::Type GetImageType() const { return ImageType; }

	/** The brush's tint as drawn in a widget: its own colour, or the widget's foreground. */
	FLinearColor GetTint(const FWidgetStyle& InWidgetStyle) const { return TintColor.GetColor(InWidgetStyle); }

	/** Whether the brush names an image: it is then drawn from a texture the renderer loads. */
	bool IsSet() const { return bIsSet; }

	/** The renderer's handle on the brush's texture, loaded the first time it is asked for. */
	const FSlateResourceHandle& GetRenderingResource(FVector2D LocalSize, float DrawScale) const;
	const FSlateResourceHandle& GetRenderingResource() const;

	/** The name of the rendering resource to use: for an image brush, the image file's path. */
	const FName GetResourceName() const { return ResourceName; }

	bool operator==(const FSlateBrush& Other) const { return ImageSize == Other.ImageSize && DrawAs == Other.DrawAs && Margin == Other.Margin && TintColor == Other.TintColor && Tiling == Other.Tiling && ImageType == Other.ImageType && ResourceName == Other.ResourceName && OutlineSettings.CornerRadii == Other.OutlineSettings.CornerRadii && OutlineSettings.Color == Other.OutlineSettings.Color && OutlineSettings.Width == Other.OutlineSettings.Width && OutlineSettings.RoundingType == Other.OutlineSettings.RoundingType; }
	bool operator!=(const FSlateBrush& Other) const { return !(*this == Other); }

protected:
	FSlateBrush(ESlateBrushDrawType::Type InDrawType, const FName InResourceName, const FMargin& InMargin, ESlateBrushTileType::Type InTiling, ESlateBrushImageType::Type InImageType, const FVector2D& InImageSize, const FLinearColor& InTint = FLinearColor(1.0f, 1.0f, 1.0f, 1.0f));
	FSlateBrush(ESlateBrushDrawType::Type InDrawType, const FName InResourceName, const FMargin& InMargin, ESlateBrushTileType::Type InTiling, ESlateBrushImageType::Type InImageType, const FVector2D& InImageSize, const TSharedRef<FLinearColor>& InTint);
	FSlateBrush(ESlateBrushDrawType::Type InDrawType, const FName InResourceName, const FMargin& InMargin, ESlateBrushTileType::Type InTiling, ESlateBrushImageType::Type InImageType, const FVector2D& InImageSize, const FSlateColor& InTint);

	/** The image to render for this brush */
	FName ResourceName;

	/** Whether the brush is set; an optional brush nobody set draws nothing. */
	bool bIsSet = true;

private:
	/** Asks the renderer for the texture's handle if the brush has none that is valid. */
	void UpdateRenderingResource(FVector2f LocalSize, float DrawScale) const;

	mutable FSlateResourceHandle ResourceHandle;
};
