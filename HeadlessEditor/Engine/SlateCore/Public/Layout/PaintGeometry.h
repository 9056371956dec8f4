#pragma once

#include "CoreMinimal.h"
#include "Rendering/SlateLayoutTransform.h"

/** Where a draw element is drawn in its window: position and scale in window pixels, and its size in local units. */
struct SLATECORE_API FPaintGeometry
{
	/** Render-space position at which we will draw. */
	FVector2f DrawPosition;

	/** Only affects the draw aspects of individual draw elements that use it, e.g. a border's edge width. */
	float DrawScale;

	/** The size in local space: the draw size undone by the draw scale. */
	const FVector2D& GetLocalSize() const { return LocalSize; }

	/** Layout only translates and scales; nothing draws with a render transform. */
	bool HasRenderTransform() const { return false; }

	FPaintGeometry()
		: DrawPosition(0.0f, 0.0f)
		, DrawScale(1.0f)
		, LocalSize(0.0, 0.0)
	{
	}

	/** A geometry drawn at a window position, with its size in window pixels and the scale it was drawn at. */
	FPaintGeometry(FVector2D InDrawPosition, FVector2D InDrawSize, float InDrawScale)
		: DrawPosition(InDrawPosition)
		, DrawScale(InDrawScale)
		, LocalSize(InDrawSize / static_cast<double>(InDrawScale))
	{
	}

	/** Moves and scales the geometry further. */
	void AppendTransform(const FSlateLayoutTransform& LayoutTransform)
	{
		DrawPosition = LayoutTransform.TransformPoint(DrawPosition);
		DrawScale *= LayoutTransform.GetScale();
	}

private:
	FVector2D LocalSize;
};
