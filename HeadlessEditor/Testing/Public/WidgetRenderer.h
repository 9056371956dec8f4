#pragma once

#include "CoreMinimal.h"
#include "Misc/Optional.h"

class FSlateWindowElementList;
class SWidget;

/** A rendered picture: Cairo's 32-bit premultiplied ARGB pixels, rows top to bottom. */
struct HEADLESSTESTING_API FRenderedImage
{
	int32 Width = 0;
	int32 Height = 0;
	/** Bytes from one row to the next. */
	int32 Stride = 0;
	TArray<uint8> Data;

	/** The pixel's colour in sRGB with straight alpha. */
	FColor GetPixel(int32 X, int32 Y) const;

	/** Writes the picture as a PNG file. @return whether it was written */
	bool SavePng(const FString& Path) const;

	/** Reads a PNG file into a picture; unset when the file cannot be read as a PNG. */
	static TOptional<FRenderedImage> LoadPng(const FString& Path);
};

/**
 * Renders widgets as a window would show them, for tests and tools: lays them out at a size, paints
 * their draw elements, and draws the elements with Cairo and Pango into a picture.
 */
class HEADLESSTESTING_API FWidgetRenderer
{
public:
	/**
	 * Lays the widget out as the root of a window of the given size and paints it, frame after frame
	 * as the editor does, until a frame draws everything where the previous one did: widgets that
	 * follow the room they were given in the last frame (wrapping text, wrap boxes, scroll bars)
	 * settle within a few frames. OutElements holds the last frame's elements.
	 */
	static void PaintWidget(const TSharedRef<SWidget>& Widget, const FVector2D& Size, FSlateWindowElementList& OutElements);

	/** Draws the elements, by layer, onto a transparent picture of the given size. */
	static FRenderedImage Rasterize(const FSlateWindowElementList& Elements, int32 Width, int32 Height);

	/** Paints the widget at the given size and draws it. */
	static FRenderedImage RenderWidget(const TSharedRef<SWidget>& Widget, int32 Width, int32 Height);
};
