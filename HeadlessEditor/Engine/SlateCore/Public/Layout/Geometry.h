#pragma once

#include "CoreMinimal.h"
#include "Layout/Margin.h"
#include "Layout/PaintGeometry.h"
#include "Layout/SlateRect.h"
#include "Rendering/SlateLayoutTransform.h"

class FArrangedWidget;
class SWidget;

/**
 * Where a widget is and how large: its size in its own local space, and the layout transform
 * (scale and position) from that space to its window. Parents make their children's geometry
 * with MakeChild, so positions accumulate down the tree.
 */
struct SLATECORE_API FGeometry
{
public:
	/** An empty geometry at the origin of its window. */
	FGeometry();

	FGeometry(const FGeometry& RHS) = default;
	FGeometry& operator=(const FGeometry& RHS);

	/** A child geometry OffsetFromParent away from a parent at ParentAbsolutePosition, drawn at InScale. */
	FGeometry(const FVector2D& OffsetFromParent, const FVector2D& ParentAbsolutePosition, const FVector2D& InLocalSize, float InScale);

	bool operator==(const FGeometry& Other) const { return Size == Other.Size && AbsolutePosition == Other.AbsolutePosition && Position == Other.Position && Scale == Other.Scale; }
	bool operator!=(const FGeometry& Other) const { return !(*this == Other); }

	/** The geometry of a window's root: its size and where its space sits on the desktop. */
	static FGeometry MakeRoot(const FVector2D& InLocalSize, const FSlateLayoutTransform& LayoutTransform);

	/** A child placed by a transform relative to this geometry. */
	FGeometry MakeChild(const FVector2D& InLocalSize, const FSlateLayoutTransform& LayoutTransform) const;
	/** A child placed at an offset in this geometry's space, optionally scaled. */
	FGeometry MakeChild(const FVector2D& ChildOffset, const FVector2D& InLocalSize, float ChildScale = 1.0f) const;
	FArrangedWidget MakeChild(const TSharedRef<SWidget>& ChildWidget, const FVector2D& InLocalSize, const FSlateLayoutTransform& LayoutTransform) const;
	FArrangedWidget MakeChild(const TSharedRef<SWidget>& ChildWidget, const FVector2D& ChildOffset, const FVector2D& InLocalSize, float ChildScale = 1.0f) const;

	/** Where to draw this whole geometry. */
	FPaintGeometry ToPaintGeometry() const { return ToPaintGeometry(Size, FSlateLayoutTransform()); }
	/** Where to draw a part of this geometry: a size placed by a transform in local space. */
	FPaintGeometry ToPaintGeometry(const FVector2D& InLocalSize, const FSlateLayoutTransform& InLayoutTransform) const;
	FPaintGeometry ToPaintGeometry(const FSlateLayoutTransform& LayoutTransform) const { return ToPaintGeometry(Size, LayoutTransform); }
	FPaintGeometry ToPaintGeometry(const FVector2D& InLocalOffset, const FVector2D& InLocalSize, float InLocalScale = 1.0f) const;
	FPaintGeometry ToOffsetPaintGeometry(const FVector2D& LocalOffset) const { return ToPaintGeometry(FSlateLayoutTransform(LocalOffset)); }
	/** This geometry grown by InflateAmount on every side. */
	FPaintGeometry ToInflatedPaintGeometry(const FVector2D& InflateAmount) const;

	/** Whether a point in window space lies on this geometry. */
	bool IsUnderLocation(const FVector2D& AbsoluteCoordinate) const;
	FVector2D AbsoluteToLocal(FVector2D AbsoluteCoordinate) const;
	FVector2D LocalToAbsolute(FVector2D LocalCoordinate) const;

	/** The rectangle this geometry covers in window space. */
	FSlateRect GetLayoutBoundingRect() const { return GetLayoutBoundingRect(FSlateRect(FVector2D(0.0, 0.0), Size)); }
	FSlateRect GetLayoutBoundingRect(const FMargin& LocalSpaceExtendBy) const { return GetLayoutBoundingRect(FSlateRect(FVector2D(0.0, 0.0), Size).ExtendBy(LocalSpaceExtendBy)); }
	FSlateRect GetLayoutBoundingRect(const FSlateRect& LocalSpaceRect) const;
	FSlateRect GetRenderBoundingRect() const { return GetLayoutBoundingRect(); }

	FString ToString() const;

	/** The size in window pixels. */
	FVector2D GetDrawSize() const { return GetAccumulatedLayoutTransform().TransformVector(Size); }
	const FVector2D& GetLocalSize() const { return Size; }
	FSlateLayoutTransform GetAccumulatedLayoutTransform() const { return FSlateLayoutTransform(Scale, FVector2D(AbsolutePosition)); }

	/** Moves and scales the whole geometry, e.g. from window to desktop space. */
	void AppendTransform(const FSlateLayoutTransform& LayoutTransform);

	FVector2D GetAbsolutePosition() const { return FVector2D(AbsolutePosition); }
	FVector2D GetAbsoluteSize() const { return GetDrawSize(); }
	FVector2D GetAbsolutePositionAtCoordinates(const FVector2D& NormalCoordinates) const { return LocalToAbsolute(NormalCoordinates * Size); }
	FVector2D GetLocalPositionAtCoordinates(const FVector2D& NormalCoordinates) const { return FVector2D(Position) + NormalCoordinates * Size; }
	bool HasRenderTransform() const { return false; }

public:
	/** Size of the geometry in local space. */
	const FVector2D Size;

	/** How much local space is scaled to window space. */
	const float Scale;

	/** Position of the geometry's origin in window space. */
	const FVector2f AbsolutePosition;

	/** Position of the geometry relative to its parent, in the parent's space. */
	const FVector2f Position;

private:
	FGeometry(const FVector2D& InLocalSize, const FSlateLayoutTransform& InLocalLayoutTransform, const FSlateLayoutTransform& ParentAccumulatedLayoutTransform);
};
