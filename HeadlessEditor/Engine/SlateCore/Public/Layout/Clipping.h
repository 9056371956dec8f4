#pragma once

#include "CoreMinimal.h"
#include "Layout/Geometry.h"
#include "Layout/SlateRect.h"

/** Whether a widget cuts off what it and its content draw outside its bounds. */
enum class EWidgetClipping : uint8
{
	/** This widget does not clip children, it and all children inherit the clipping area of the last widget that clipped. */
	Inherit,
	/** This widget clips content the bounds of this widget.  It intersects those bounds with any previous clipping area. */
	ClipToBounds,
	/** This widget clips to its bounds.  It does NOT intersect with any previous bounds.  This clipping rect is used for everything but culling. */
	ClipToBoundsWithoutIntersecting,
	/** This widget clips to its bounds.  It intersects those bounds with any previous clipping area. */
	ClipToBoundsAlways,
	/** This widget clips to its bounds when it's Desired Size is larger than the allocated geometry the widget is given. */
	OnDemand
};

/** A rectangle draw elements are cut to. Layout only moves and scales, so the zone stays axis aligned. */
class SLATECORE_API FSlateClippingZone
{
public:
	FVector2f TopLeft;
	FVector2f TopRight;
	FVector2f BottomLeft;
	FVector2f BottomRight;

	explicit FSlateClippingZone(const FSlateRect& AxisAlignedRect);
	explicit FSlateClippingZone(const FGeometry& BoundingGeometry);

	/** Whether the zone is cut to the zones pushed before it. */
	bool GetShouldIntersectParent() const { return bIntersect; }
	void SetShouldIntersectParent(bool bValue) { bIntersect = bValue; }

	/** The zone as a rectangle in window space. */
	FSlateRect GetBoundingBox() const;

	/** The overlap of this zone and another. */
	FSlateClippingZone Intersect(const FSlateClippingZone& Other) const;

private:
	bool bIntersect;
};

/** What a draw element is clipped to: nothing, or a zone. */
class SLATECORE_API FSlateClippingState
{
public:
	FSlateClippingState() {}

	/** The zone that clips; unset when nothing clips. */
	TOptional<FSlateClippingZone> ScissorRect;
};

/** The clipping zones pushed while painting, and the state each draw element was made in. */
class SLATECORE_API FSlateClippingManager
{
public:
	FSlateClippingManager();

	/** Starts clipping to a zone, cut to the current one unless it asks not to be. @return the new state's index */
	int32 PushClip(const FSlateClippingZone& InClippingZone);
	/** Goes back to the clipping of before the last push. */
	void PopClip();

	/** The index of the current state in GetClippingStates; INDEX_NONE when nothing clips. */
	int32 GetClippingIndex() const;
	int32 GetStackDepth() const { return ClippingStack.Num(); }
	const TArray<FSlateClippingState>& GetClippingStates() const { return ClippingStates; }
	void ResetClippingState();

private:
	TArray<int32> ClippingStack;
	TArray<FSlateClippingState> ClippingStates;
};
