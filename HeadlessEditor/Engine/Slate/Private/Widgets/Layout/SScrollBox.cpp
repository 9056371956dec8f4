#include "Widgets/Layout/SScrollBox.h"

#include "Layout/ArrangedChildren.h"
#include "Layout/LayoutUtils.h"
#include "Brushes/SlateRoundedBoxBrush.h"
#include "Rendering/DrawElements.h"
#include "Styling/StyleColors.h"
#include "Styling/WidgetStyle.h"
#include "Types/PaintArgs.h"

#include <algorithm>
#include <limits>

SScrollBox::FSlot::FSlotArguments SScrollBox::Slot()
{
	return FSlot::FSlotArguments(MakeUnique<FSlot>());
}

SScrollBox::SScrollBox()
	: Children(this)
	, Orientation(Orient_Vertical)
	, ScrollBarThickness(9.0, 9.0)
	, ScrollBarVisibility(EVisibility::Visible)
	, bScrollBarAlwaysVisible(false)
	, LastViewLength(std::numeric_limits<float>::max())
{
}

void SScrollBox::Construct(const FArguments& InArgs)
{
	Orientation = InArgs._Orientation;
	ScrollBarThickness = InArgs._ScrollBarThickness;
	ScrollBarVisibility = InArgs._ScrollBarVisibility;
	bScrollBarAlwaysVisible = InArgs._ScrollBarAlwaysVisible;
	Children.AddSlots(MoveTemp(const_cast<TArray<FSlot::FSlotArguments>&>(InArgs._Slots)));
}

SScrollBox::FScopedWidgetSlotArguments SScrollBox::AddSlot()
{
	return FScopedWidgetSlotArguments{MakeUnique<FSlot>(), Children, INDEX_NONE};
}

float SScrollBox::GetContentLength() const
{
	const FVector2D Desired = ComputeDesiredSize(1.0f);
	return static_cast<float>(Orientation == Orient_Vertical ? Desired.Y : Desired.X);
}

bool SScrollBox::IsScrollBarVisible() const
{
	return ScrollBarVisibility != EVisibility::Collapsed && (bScrollBarAlwaysVisible || GetContentLength() > LastViewLength);
}

FVector2D SScrollBox::ComputeDesiredSize(float) const
{
	float Along = 0.0f;
	float Across = 0.0f;
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		const FSlot& Slot = Children[Index];
		if (Slot.GetWidget()->GetVisibility() == EVisibility::Collapsed)
		{
			continue;
		}
		const FVector2D SlotSize = Slot.GetWidget()->GetDesiredSize() + Slot.GetPadding().GetDesiredSize();
		Along += static_cast<float>(Orientation == Orient_Vertical ? SlotSize.Y : SlotSize.X);
		Across = std::max(Across, static_cast<float>(Orientation == Orient_Vertical ? SlotSize.X : SlotSize.Y));
	}
	return Orientation == Orient_Vertical ? FVector2D(Across, Along) : FVector2D(Along, Across);
}

void SScrollBox::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	const bool bVertical = Orientation == Orient_Vertical;
	const FVector2D BoxSize = AllottedGeometry.GetLocalSize();
	LastViewLength = static_cast<float>(bVertical ? BoxSize.Y : BoxSize.X);

	// The scroll bar takes its thickness from the side of the content when it shows; the view starts at the top.
	const float BarThickness = IsScrollBarVisible() ? static_cast<float>(bVertical ? ScrollBarThickness.X : ScrollBarThickness.Y) : 0.0f;
	const float ViewAcross = std::max(0.0f, static_cast<float>(bVertical ? BoxSize.X : BoxSize.Y) - BarThickness);
	float PositionSoFar = 0.0f;
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		const FSlot& Slot = Children[Index];
		const EVisibility ChildVisibility = Slot.GetWidget()->GetVisibility();
		if (ChildVisibility == EVisibility::Collapsed)
		{
			continue;
		}
		const FMargin Padding = Slot.GetPadding();
		const FVector2D Desired = Slot.GetWidget()->GetDesiredSize();
		if (bVertical)
		{
			const float SlotLength = static_cast<float>(Desired.Y) + Padding.GetTotalSpaceAlong<Orient_Vertical>();
			const AlignmentArrangeResult XResult = AlignChild<Orient_Horizontal>(ViewAcross, Slot, Padding);
			ArrangedChildren.AddWidget(ChildVisibility, AllottedGeometry.MakeChild(Slot.GetWidget(), FVector2D(XResult.Offset, PositionSoFar + Padding.Top), FVector2D(XResult.Size, Desired.Y)));
			PositionSoFar += SlotLength;
		}
		else
		{
			const float SlotLength = static_cast<float>(Desired.X) + Padding.GetTotalSpaceAlong<Orient_Horizontal>();
			const AlignmentArrangeResult YResult = AlignChild<Orient_Vertical>(ViewAcross, Slot, Padding);
			ArrangedChildren.AddWidget(ChildVisibility, AllottedGeometry.MakeChild(Slot.GetWidget(), FVector2D(PositionSoFar + Padding.Left, YResult.Offset), FVector2D(Desired.X, YResult.Size)));
			PositionSoFar += SlotLength;
		}
	}
}

int32 SScrollBox::OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	FArrangedChildren ArrangedChildren(EVisibility::Visible);
	ArrangeChildren(AllottedGeometry, ArrangedChildren);
	int32 MaxLayerId = LayerId;
	const bool bEnabled = ShouldBeEnabled(bParentEnabled);
	for (int32 Index = 0; Index < ArrangedChildren.Num(); ++Index)
	{
		const FArrangedWidget& Child = ArrangedChildren[Index];
		MaxLayerId = std::max(MaxLayerId, Child.Widget->Paint(Args.WithNewParent(this), Child.Geometry, MyCullingRect, OutDrawElements, LayerId, InWidgetStyle, bEnabled));
	}
	if (!IsScrollBarVisible())
	{
		return MaxLayerId;
	}
	// The thumb shows which part of the content is in view: the view starts at the top.
	static const FSlateRoundedBoxBrush ThumbBrush(FStyleColors::Hover, 4.0f);
	const bool bVertical = Orientation == Orient_Vertical;
	const FVector2D BoxSize = AllottedGeometry.GetLocalSize();
	const double ViewLength = bVertical ? BoxSize.Y : BoxSize.X;
	const double ThumbLength = ViewLength * ViewLength / std::max(static_cast<double>(GetContentLength()), ViewLength);
	const double Thickness = bVertical ? ScrollBarThickness.X : ScrollBarThickness.Y;
	const FVector2D ThumbOffset = bVertical ? FVector2D(BoxSize.X - Thickness, 0.0) : FVector2D(0.0, BoxSize.Y - Thickness);
	const FVector2D ThumbSize = bVertical ? FVector2D(Thickness, ThumbLength) : FVector2D(ThumbLength, Thickness);
	FSlateDrawElement::MakeBox(OutDrawElements, MaxLayerId + 1, AllottedGeometry.ToPaintGeometry(ThumbOffset, ThumbSize), &ThumbBrush, bEnabled ? ESlateDrawEffect::None : ESlateDrawEffect::DisabledEffect, ThumbBrush.GetTint(InWidgetStyle) * InWidgetStyle.GetColorAndOpacityTint());
	return MaxLayerId + 1;
}
