#pragma once

#include "CoreMinimal.h"
#include "Layout/ArrangedChildren.h"
#include "Layout/Margin.h"
#include "Layout/SlateRect.h"
#include "Layout/Visibility.h"
#include "Misc/Attribute.h"

#include <algorithm>

/** Where a child starts along one direction of its slot, and how long it is along it. */
struct AlignmentArrangeResult
{
	AlignmentArrangeResult(float InOffset, float InSize)
		: Offset(InOffset)
		, Size(InSize)
	{
	}

	float Offset;
	float Size;
};

namespace ArrangeUtils
{
	/** The slot's alignment along one direction, as the shared horizontal alignment values. */
	template <EOrientation Orientation, typename SlotType>
	int32 GetAlignment(const SlotType& InSlot)
	{
		if constexpr (Orientation == Orient_Horizontal)
		{
			return static_cast<int32>(InSlot.GetHorizontalAlignment());
		}
		else
		{
			return static_cast<int32>(InSlot.GetVerticalAlignment());
		}
	}
}

/**
 * Places a child along one direction of the space allotted to its slot: a filling child takes the
 * whole space inside the padding; any other takes its desired size, clamped to the space inside the
 * padding unless told not to, at the start, middle or end.
 */
template <EOrientation Orientation, typename SlotType>
static AlignmentArrangeResult AlignChild(float AllottedSize, float ChildDesiredSize, const SlotType& ChildToArrange, const FMargin& SlotPadding, const float& ContentScale = 1.0f, bool bClampToParent = true)
{
	const float TotalMargin = SlotPadding.GetTotalSpaceAlong<Orientation>();
	const float MarginPre = Orientation == Orient_Horizontal ? SlotPadding.Left : SlotPadding.Top;
	const float MarginPost = Orientation == Orient_Horizontal ? SlotPadding.Right : SlotPadding.Bottom;
	const float SpaceInside = AllottedSize - TotalMargin;
	const int32 Alignment = ArrangeUtils::GetAlignment<Orientation>(ChildToArrange);
	if (Alignment == HAlign_Fill)
	{
		return AlignmentArrangeResult(MarginPre, std::max(SpaceInside * ContentScale, 0.0f));
	}

	const float ChildSize = std::max(bClampToParent ? std::min(ChildDesiredSize, SpaceInside) : ChildDesiredSize, 0.0f);
	switch (Alignment)
	{
		case HAlign_Center:
			return AlignmentArrangeResult((AllottedSize - ChildSize) / 2.0f + MarginPre - MarginPost, ChildSize);
		case HAlign_Right:
			return AlignmentArrangeResult(AllottedSize - ChildSize - MarginPost, ChildSize);
		default:
			return AlignmentArrangeResult(MarginPre, ChildSize);
	}
}

/** As above, with the child's own desired size, scaled. */
template <EOrientation Orientation, typename SlotType>
static AlignmentArrangeResult AlignChild(float AllottedSize, const SlotType& ChildToArrange, const FMargin& SlotPadding, const float& ContentScale = 1.0f, bool bClampToParent = true)
{
	const FVector2D DesiredSize = ChildToArrange.GetWidget()->GetDesiredSize();
	const float ChildDesiredSize = static_cast<float>(Orientation == Orient_Horizontal ? DesiredSize.X : DesiredSize.Y) * ContentScale;
	return AlignChild<Orientation, SlotType>(AllottedSize, ChildDesiredSize, ChildToArrange, SlotPadding, ContentScale, bClampToParent);
}

/** Arranges the one child of a single-slot widget inside its padding, by its alignment. */
template <typename SlotType>
static void ArrangeSingleChild(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren, const SlotType& ChildSlot, const FVector2D& ContentScale)
{
	const EVisibility ChildVisibility = ChildSlot.GetWidget()->GetVisibility();
	if (ArrangedChildren.Accepts(ChildVisibility))
	{
		const FMargin SlotPadding(ChildSlot.GetPadding());
		const AlignmentArrangeResult XResult = AlignChild<Orient_Horizontal>(static_cast<float>(AllottedGeometry.GetLocalSize().X), ChildSlot, SlotPadding, static_cast<float>(ContentScale.X));
		const AlignmentArrangeResult YResult = AlignChild<Orient_Vertical>(static_cast<float>(AllottedGeometry.GetLocalSize().Y), ChildSlot, SlotPadding, static_cast<float>(ContentScale.Y));
		ArrangedChildren.AddWidget(ChildVisibility, AllottedGeometry.MakeChild(ChildSlot.GetWidget(), FVector2D(XResult.Offset, YResult.Offset), FVector2D(XResult.Size, YResult.Size)));
	}
}

template <typename SlotType>
static void ArrangeSingleChild(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren, const SlotType& ChildSlot, const TAttribute<FVector2D>& ContentScale)
{
	ArrangeSingleChild(AllottedGeometry, ArrangedChildren, ChildSlot, ContentScale.Get());
}
