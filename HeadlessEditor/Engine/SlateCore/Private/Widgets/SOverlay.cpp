#include "Widgets/SOverlay.h"

#include "Layout/ArrangedChildren.h"
#include "Layout/LayoutUtils.h"
#include "Types/PaintArgs.h"

#include <algorithm>

SOverlay::FOverlaySlot::FSlotArguments SOverlay::Slot()
{
	return FOverlaySlot::FSlotArguments(MakeUnique<FOverlaySlot>(0));
}

SOverlay::SOverlay()
	: Children(this)
{
}

void SOverlay::Construct(const FArguments& InArgs)
{
	// Declared slots are stacked in order, each in front of the one before.
	TArray<FOverlaySlot::FSlotArguments>& Slots = const_cast<TArray<FOverlaySlot::FSlotArguments>&>(InArgs._Slots);
	for (int32 Index = 0; Index < Slots.Num(); ++Index)
	{
		Slots[Index].GetSlot()->ZOrder = Index;
		Children.AddSlot(MoveTemp(Slots[Index]));
	}
}

SOverlay::FScopedWidgetSlotArguments SOverlay::AddSlot(int32 ZOrder)
{
	int32 InsertIndex = INDEX_NONE;
	if (ZOrder == INDEX_NONE)
	{
		ZOrder = Children.Num() > 0 ? Children[Children.Num() - 1].ZOrder + 1 : 0;
	}
	else
	{
		for (int32 Index = 0; Index < Children.Num(); ++Index)
		{
			if (Children[Index].ZOrder > ZOrder)
			{
				InsertIndex = Index;
				break;
			}
		}
	}
	return FScopedWidgetSlotArguments{MakeUnique<FOverlaySlot>(ZOrder), Children, InsertIndex};
}

void SOverlay::RemoveSlot(int32 ZOrder)
{
	if (ZOrder == INDEX_NONE)
	{
		if (Children.Num() > 0)
		{
			Children.RemoveAt(Children.Num() - 1);
		}
		return;
	}
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		if (Children[Index].ZOrder == ZOrder)
		{
			Children.RemoveAt(Index);
			return;
		}
	}
}

void SOverlay::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	// Every layer gets the whole overlay, placed by its own padding and alignment.
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		ArrangeSingleChild(AllottedGeometry, ArrangedChildren, Children[Index], FVector2D(1.0, 1.0));
	}
}

FVector2D SOverlay::ComputeDesiredSize(float) const
{
	FVector2D MaxSize(0.0, 0.0);
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		const FOverlaySlot& Slot = Children[Index];
		if (Slot.GetWidget()->GetVisibility() != EVisibility::Collapsed)
		{
			MaxSize = MaxSize.ComponentMax(Slot.GetWidget()->GetDesiredSize() + Slot.GetPadding().GetDesiredSize());
		}
	}
	return MaxSize;
}

int32 SOverlay::OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	FArrangedChildren ArrangedChildren(EVisibility::Visible);
	ArrangeChildren(AllottedGeometry, ArrangedChildren);
	int32 MaxLayerId = LayerId;
	const FPaintArgs NewArgs = Args.WithNewParent(this);
	const bool bShouldBeEnabled = ShouldBeEnabled(bParentEnabled);
	for (int32 ChildIndex = 0; ChildIndex < ArrangedChildren.Num(); ++ChildIndex)
	{
		const FArrangedWidget& Child = ArrangedChildren[ChildIndex];
		MaxLayerId = std::max(MaxLayerId, Child.Widget->Paint(NewArgs, Child.Geometry, MyCullingRect, OutDrawElements, MaxLayerId + 1, InWidgetStyle, bShouldBeEnabled));
	}
	return MaxLayerId;
}
