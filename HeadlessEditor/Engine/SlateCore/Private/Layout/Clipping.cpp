#include "Layout/Clipping.h"

#include <algorithm>

FSlateClippingZone::FSlateClippingZone(const FSlateRect& AxisAlignedRect)
	: TopLeft(AxisAlignedRect.Left, AxisAlignedRect.Top)
	, TopRight(AxisAlignedRect.Right, AxisAlignedRect.Top)
	, BottomLeft(AxisAlignedRect.Left, AxisAlignedRect.Bottom)
	, BottomRight(AxisAlignedRect.Right, AxisAlignedRect.Bottom)
	, bIntersect(true)
{
}

FSlateClippingZone::FSlateClippingZone(const FGeometry& BoundingGeometry)
	: FSlateClippingZone(BoundingGeometry.GetLayoutBoundingRect())
{
}

FSlateRect FSlateClippingZone::GetBoundingBox() const
{
	return FSlateRect(std::min(TopLeft.X, BottomLeft.X), std::min(TopLeft.Y, TopRight.Y), std::max(TopRight.X, BottomRight.X), std::max(BottomLeft.Y, BottomRight.Y));
}

FSlateClippingZone FSlateClippingZone::Intersect(const FSlateClippingZone& Other) const
{
	FSlateClippingZone Overlap(GetBoundingBox().IntersectionWith(Other.GetBoundingBox()));
	Overlap.SetShouldIntersectParent(bIntersect);
	return Overlap;
}

FSlateClippingManager::FSlateClippingManager() = default;

int32 FSlateClippingManager::PushClip(const FSlateClippingZone& InClippingZone)
{
	FSlateClippingState State;
	const int32 Current = GetClippingIndex();
	State.ScissorRect = InClippingZone.GetShouldIntersectParent() && Current != INDEX_NONE && ClippingStates[Current].ScissorRect.IsSet()
		? ClippingStates[Current].ScissorRect.GetValue().Intersect(InClippingZone)
		: InClippingZone;
	const int32 NewIndex = ClippingStates.Add(State);
	ClippingStack.Add(NewIndex);
	return NewIndex;
}

void FSlateClippingManager::PopClip()
{
	if (ClippingStack.Num() > 0)
	{
		ClippingStack.Pop();
	}
}

int32 FSlateClippingManager::GetClippingIndex() const
{
	return ClippingStack.Num() > 0 ? ClippingStack.Last() : INDEX_NONE;
}

void FSlateClippingManager::ResetClippingState()
{
	ClippingStack.Reset();
	ClippingStates.Reset();
}
