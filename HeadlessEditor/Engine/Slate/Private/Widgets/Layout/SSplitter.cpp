#include "Widgets/Layout/SSplitter.h"

#include "Layout/ArrangedChildren.h"
#include "Rendering/DrawElements.h"

#include <algorithm>
#include <cmath>

void SSplitter::FSlot::Construct(const FChildren& SlotOwner, FSlotArguments&& InArgs)
{
	TSlotBase<FSlot>::Construct(SlotOwner, MoveTemp(InArgs));
	if (InArgs._Value.IsSet())
	{
		SizeValue = MoveTemp(InArgs._Value);
	}
	if (InArgs._MinSize.IsSet())
	{
		MinSizeValue = MoveTemp(InArgs._MinSize);
	}
	if (InArgs._SizeRule.IsSet())
	{
		SizingRule = MoveTemp(InArgs._SizeRule);
	}
}

SSplitter::FSlot::FSlotArguments SSplitter::Slot()
{
	return FSlot::FSlotArguments(MakeUnique<FSlot>());
}

SSplitter::SSplitter()
	: Children(this)
	, Style(nullptr)
	, Orientation(Orient_Horizontal)
	, PhysicalSplitterHandleSize(5.0f)
	, MinSplitterChildLength(20.0f)
{
}

void SSplitter::Construct(const FArguments& InArgs)
{
	check(InArgs._Style);
	Style = InArgs._Style;
	Orientation = InArgs._Orientation;
	PhysicalSplitterHandleSize = InArgs._PhysicalSplitterHandleSize;
	MinSplitterChildLength = InArgs._MinimumSlotHeight;
	HighlightedHandleIndex = InArgs._HighlightedHandleIndex;
	Children.AddSlots(MoveTemp(const_cast<TArray<FSlot::FSlotArguments>&>(InArgs._Slots)));
}

SSplitter::FScopedWidgetSlotArguments SSplitter::AddSlot(int32 AtIndex)
{
	return FScopedWidgetSlotArguments{MakeUnique<FSlot>(), Children, AtIndex};
}

bool SSplitter::IsSlotCollapsed(const FSlot& Slot) const
{
	return Slot.GetWidget()->GetVisibility() == EVisibility::Collapsed;
}

float SSplitter::ClampChild(const FSlot& ChildSlot, float ProposedSize) const
{
	// The engine's clamp keeps only the slot's own minimum, not the splitter-wide one.
	return std::max(ChildSlot.GetMinSize(), ProposedSize);
}

TArray<float> SSplitter::ComputeSlotSizes(float AllottedLength) const
{
	const int32 Axis = Orientation == Orient_Horizontal ? 0 : 1;
	int32 NumNonCollapsed = 0;
	float CoefficientTotal = 0.0f;
	float NonResizableSpace = 0.0f;
	float MinResizableSpace = 0.0f;
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		const FSlot& Slot = Children[Index];
		if (IsSlotCollapsed(Slot))
		{
			continue;
		}
		++NumNonCollapsed;
		if (Slot.GetSizingRule() == SizeToContent)
		{
			NonResizableSpace += static_cast<float>(Slot.GetWidget()->GetDesiredSize()[Axis]);
		}
		else
		{
			MinResizableSpace += std::max(MinSplitterChildLength, Slot.GetMinSize());
			CoefficientTotal += Slot.GetSizeValue();
		}
	}

	const float HandlesSpace = static_cast<float>(std::max(0, NumNonCollapsed - 1)) * PhysicalSplitterHandleSize;
	const float ResizableSpace = AllottedLength - HandlesSpace - NonResizableSpace;

	TArray<float> Sizes;
	float ExtraRequiredSpace = 0.0f;
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		const FSlot& Slot = Children[Index];
		if (IsSlotCollapsed(Slot))
		{
			Sizes.Add(0.0f);
			continue;
		}
		float ChildSpace = 0.0f;
		if (Slot.GetSizingRule() == SizeToContent)
		{
			ChildSpace = static_cast<float>(Slot.GetWidget()->GetDesiredSize()[Axis]);
		}
		else
		{
			ChildSpace = (CoefficientTotal > 0.0f ? ResizableSpace * Slot.GetSizeValue() / CoefficientTotal : 0.0f) - ExtraRequiredSpace;
			ExtraRequiredSpace = 0.0f;
		}

		// With room for every minimum, a slot below its minimum takes the difference from the fraction slots before it, then from the next one.
		if (ResizableSpace >= MinResizableSpace)
		{
			const float ClampedSpace = ClampChild(Slot, ChildSpace);
			float RequiredSpace = ClampedSpace - ChildSpace;
			for (int32 Previous = Index - 1; Previous >= 0 && RequiredSpace > 0.0f; --Previous)
			{
				if (Children[Previous].GetSizingRule() == FractionOfParent)
				{
					const float Available = Sizes[Previous] - std::max(MinSplitterChildLength, Children[Previous].GetMinSize());
					if (Available > 0.0f)
					{
						const float Taken = std::min(Available, RequiredSpace);
						Sizes[Previous] -= Taken;
						RequiredSpace -= Taken;
					}
				}
			}
			ExtraRequiredSpace = std::max(RequiredSpace, 0.0f);
			ChildSpace = ClampedSpace;
		}
		Sizes.Add(ChildSpace);
	}
	return Sizes;
}

void SSplitter::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	const bool bHorizontal = Orientation == Orient_Horizontal;
	const FVector2D Allotted = AllottedGeometry.GetLocalSize();
	const TArray<float> Sizes = ComputeSlotSizes(static_cast<float>(bHorizontal ? Allotted.X : Allotted.Y));
	float Offset = 0.0f;
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		const FSlot& Slot = Children[Index];
		const FVector2D ChildOffset = bHorizontal ? FVector2D(Offset, 0.0) : FVector2D(0.0, Offset);
		const FVector2D ChildSize = bHorizontal ? FVector2D(Sizes[Index], Allotted.Y) : FVector2D(Allotted.X, Sizes[Index]);
		ArrangedChildren.AddWidget(Slot.GetWidget()->GetVisibility(), AllottedGeometry.MakeChild(Slot.GetWidget(), ChildOffset, ChildSize));
		if (!IsSlotCollapsed(Slot))
		{
			// Slots start on whole pixels, each after its handle.
			Offset += std::round(Sizes[Index] + PhysicalSplitterHandleSize);
		}
	}
}

int32 SSplitter::OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	FArrangedChildren ArrangedChildren(EVisibility::Visible);
	ArrangeChildren(AllottedGeometry, ArrangedChildren);
	const int32 HandleLayer = PaintArrangedChildren(Args, ArrangedChildren, AllottedGeometry, MyCullingRect, OutDrawElements, LayerId, InWidgetStyle, bParentEnabled) + 1;

	// Each handle lies just before the child that follows it.
	const int32 Highlighted = HighlightedHandleIndex.Get();
	const ESlateDrawEffect Effect = ShouldBeEnabled(bParentEnabled) ? ESlateDrawEffect::None : ESlateDrawEffect::DisabledEffect;
	for (int32 Index = 0; Index + 1 < ArrangedChildren.Num(); ++Index)
	{
		const FGeometry& Following = ArrangedChildren[Index + 1].Geometry;
		const bool bHorizontal = Orientation == Orient_Horizontal;
		const FVector2D HandleSize = bHorizontal ? FVector2D(PhysicalSplitterHandleSize, Following.GetLocalSize().Y) : FVector2D(Following.GetLocalSize().X, PhysicalSplitterHandleSize);
		const FVector2D HandlePosition = bHorizontal ? FVector2D(-PhysicalSplitterHandleSize, 0.0) : FVector2D(0.0, -PhysicalSplitterHandleSize);
		const FSlateBrush* Brush = Index == Highlighted ? &Style->HandleHighlightBrush : &Style->HandleNormalBrush;
		FSlateDrawElement::MakeBox(OutDrawElements, HandleLayer, Following.ToPaintGeometry(HandlePosition, HandleSize, 1.0f), Brush, Effect, InWidgetStyle.GetColorAndOpacityTint() * Brush->GetTint(InWidgetStyle));
	}
	return HandleLayer;
}

FVector2D SSplitter::ComputeDesiredSize(float) const
{
	const bool bHorizontal = Orientation == Orient_Horizontal;
	FVector2D Desired(0.0, 0.0);
	int32 NumNonCollapsed = 0;
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		const FSlot& Slot = Children[Index];
		if (IsSlotCollapsed(Slot))
		{
			continue;
		}
		++NumNonCollapsed;
		const FVector2D ChildDesired = Slot.GetWidget()->GetDesiredSize();
		if (bHorizontal)
		{
			Desired.X += ChildDesired.X;
			Desired.Y = std::max(Desired.Y, ChildDesired.Y);
		}
		else
		{
			Desired.X = std::max(Desired.X, ChildDesired.X);
			Desired.Y += ChildDesired.Y;
		}
	}
	const double Handles = static_cast<double>(std::max(0, NumNonCollapsed - 1)) * PhysicalSplitterHandleSize;
	(bHorizontal ? Desired.X : Desired.Y) += Handles;
	return Desired;
}
