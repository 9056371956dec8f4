#include "Widgets/Layout/SScrollBarTrack.h"

#include "Layout/ArrangedChildren.h"

#include <algorithm>

namespace
{
	/** Below this, a thumb fraction counts as the whole track: all the content is in view. */
	const float ThumbFractionTolerance = 1.e-4f;
}

void SScrollBarTrack::Construct(const FArguments& InArgs)
{
	// No offset and a thumb as long as the track: nothing to scroll yet.
	OffsetFraction = 0.0f;
	ThumbSizeFraction = 1.0f;
	MinThumbSize = 35.0f;
	Orientation = InArgs._Orientation;
	Children.AddSlot(MoveTemp(FSlot::FSlotArguments(MakeUnique<FSlot>())[InArgs._TopSlot.Widget]));
	Children.AddSlot(MoveTemp(FSlot::FSlotArguments(MakeUnique<FSlot>())[InArgs._BottomSlot.Widget]));
	Children.AddSlot(MoveTemp(FSlot::FSlotArguments(MakeUnique<FSlot>())[InArgs._ThumbSlot.Widget]));
}

SScrollBarTrack::FTrackSizeInfo SScrollBarTrack::GetTrackSizeInfo(const FGeometry& InTrackGeometry) const
{
	const float CurrentMinThumbSize = ThumbSizeFraction <= 0.0f ? 0.0f : MinThumbSize;
	return FTrackSizeInfo(InTrackGeometry, Orientation, CurrentMinThumbSize, ThumbSizeFraction, OffsetFraction);
}

void SScrollBarTrack::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	const double Width = AllottedGeometry.GetLocalSize().X;
	const double Height = AllottedGeometry.GetLocalSize().Y;
	if (!IsNeeded())
	{
		// Without a thumb, the part before it fills the track.
		ArrangedChildren.AddWidget(AllottedGeometry.MakeChild(Children[TOP_SLOT_INDEX].GetWidget(), FVector2D(0.0, 0.0), FVector2D(Width, Height)));
		return;
	}
	FTrackSizeInfo TrackSizeInfo = GetTrackSizeInfo(AllottedGeometry);
	const bool bHorizontal = Orientation == Orient_Horizontal;
	ArrangedChildren.AddWidget(AllottedGeometry.MakeChild(Children[TOP_SLOT_INDEX].GetWidget(), FVector2D(0.0, 0.0), bHorizontal ? FVector2D(TrackSizeInfo.ThumbStart, Height) : FVector2D(Width, TrackSizeInfo.ThumbStart)));
	const double ThumbEnd = TrackSizeInfo.GetThumbEnd();
	ArrangedChildren.AddWidget(AllottedGeometry.MakeChild(Children[BOTTOM_SLOT_INDEX].GetWidget(), bHorizontal ? FVector2D(ThumbEnd, 0.0) : FVector2D(0.0, ThumbEnd), bHorizontal ? FVector2D(Width - ThumbEnd, Height) : FVector2D(Width, Height - ThumbEnd)));
	ArrangedChildren.AddWidget(AllottedGeometry.MakeChild(Children[THUMB_SLOT_INDEX].GetWidget(), bHorizontal ? FVector2D(TrackSizeInfo.ThumbStart, 0.0) : FVector2D(0.0, TrackSizeInfo.ThumbStart), bHorizontal ? FVector2D(TrackSizeInfo.ThumbSize, Height) : FVector2D(Width, TrackSizeInfo.ThumbSize)));
}

FVector2D SScrollBarTrack::ComputeDesiredSize(float) const
{
	// As thick as the thickest part, and long enough for the smallest thumb.
	double Thickness = 0.0;
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		const FVector2D ChildSize = Children[Index].GetWidget()->GetDesiredSize();
		Thickness = std::max(Thickness, Orientation == Orient_Horizontal ? ChildSize.Y : ChildSize.X);
	}
	return Orientation == Orient_Horizontal ? FVector2D(MinThumbSize, Thickness) : FVector2D(Thickness, MinThumbSize);
}

FChildren* SScrollBarTrack::GetChildren()
{
	return &Children;
}

void SScrollBarTrack::SetSizes(float InThumbOffsetFraction, float InThumbSizeFraction)
{
	OffsetFraction = InThumbOffsetFraction;
	ThumbSizeFraction = InThumbSizeFraction;
	// No thumb means the thumb is the whole track, unless the bar always shows.
	if (ThumbSizeFraction == 0.0f && !bIsAlwaysVisible)
	{
		ThumbSizeFraction = 1.0f;
	}
	else if (ThumbSizeFraction > 1.0f && bIsAlwaysVisible)
	{
		ThumbSizeFraction = 0.0f;
	}
}

bool SScrollBarTrack::IsNeeded() const
{
	return ThumbSizeFraction < (1.0f - ThumbFractionTolerance) || bIsAlwaysVisible;
}

float SScrollBarTrack::DistanceFromTop() const
{
	return OffsetFraction;
}

float SScrollBarTrack::DistanceFromBottom() const
{
	return 1.0f - (OffsetFraction + ThumbSizeFraction);
}

float SScrollBarTrack::GetMinThumbSize() const
{
	return MinThumbSize;
}

float SScrollBarTrack::GetThumbSizeFraction() const
{
	return ThumbSizeFraction;
}

void SScrollBarTrack::SetIsAlwaysVisible(bool InIsAlwaysVisible)
{
	bIsAlwaysVisible = InIsAlwaysVisible;
}
