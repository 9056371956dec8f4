#include "Widgets/Layout/SUniformGridPanel.h"

#include "Layout/ArrangedChildren.h"
#include "Layout/LayoutUtils.h"

#include <algorithm>

SUniformGridPanel::SUniformGridPanel()
	: Children(this)
{
}

SUniformGridPanel::FSlot::FSlotArguments SUniformGridPanel::Slot(int32 Column, int32 Row)
{
	return FSlot::FSlotArguments(MakeUnique<FSlot>(Column, Row));
}

void SUniformGridPanel::Construct(const FArguments& InArgs)
{
	SlotPadding = InArgs._SlotPadding;
	MinDesiredSlotWidth = InArgs._MinDesiredSlotWidth;
	MinDesiredSlotHeight = InArgs._MinDesiredSlotHeight;
	Children.AddSlots(MoveTemp(const_cast<TArray<FSlot::FSlotArguments>&>(InArgs._Slots)));
}

SUniformGridPanel::FScopedWidgetSlotArguments SUniformGridPanel::AddSlot(int32 Column, int32 Row)
{
	return FScopedWidgetSlotArguments{MakeUnique<FSlot>(Column, Row), Children, INDEX_NONE};
}

void SUniformGridPanel::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	if (Children.Num() == 0 || NumColumns == 0 || NumRows == 0)
	{
		return;
	}
	// The room is shared out evenly; each child sits in its cell by its alignment, inside the slot padding.
	const FVector2D CellSize(AllottedGeometry.GetLocalSize().X / NumColumns, AllottedGeometry.GetLocalSize().Y / NumRows);
	const FMargin CurrentSlotPadding = SlotPadding.Get();
	for (int32 ChildIndex = 0; ChildIndex < Children.Num(); ++ChildIndex)
	{
		const FSlot& Child = Children[ChildIndex];
		const EVisibility ChildVisibility = Child.GetWidget()->GetVisibility();
		if (ArrangedChildren.Accepts(ChildVisibility))
		{
			const AlignmentArrangeResult XResult = AlignChild<Orient_Horizontal>(static_cast<float>(CellSize.X), Child, CurrentSlotPadding);
			const AlignmentArrangeResult YResult = AlignChild<Orient_Vertical>(static_cast<float>(CellSize.Y), Child, CurrentSlotPadding);
			ArrangedChildren.AddWidget(ChildVisibility, AllottedGeometry.MakeChild(Child.GetWidget(), FVector2D(CellSize.X * Child.GetColumn() + XResult.Offset, CellSize.Y * Child.GetRow() + YResult.Offset), FVector2D(XResult.Size, YResult.Size)));
		}
	}
}

FVector2D SUniformGridPanel::ComputeDesiredSize(float) const
{
	FVector2D MaxChildDesiredSize = FVector2D::ZeroVector;
	const FVector2D SlotPaddingDesiredSize = SlotPadding.Get().GetDesiredSize();
	NumColumns = 0;
	NumRows = 0;
	for (int32 ChildIndex = 0; ChildIndex < Children.Num(); ++ChildIndex)
	{
		const FSlot& Child = Children[ChildIndex];
		if (Child.GetWidget()->GetVisibility() != EVisibility::Collapsed)
		{
			// A cell at (N, M) makes the grid at least N + 1 wide and M + 1 high.
			NumColumns = std::max(Child.GetColumn() + 1, NumColumns);
			NumRows = std::max(Child.GetRow() + 1, NumRows);
			const FVector2D ChildDesiredSize = Child.GetWidget()->GetDesiredSize() + SlotPaddingDesiredSize;
			MaxChildDesiredSize.X = std::max({MaxChildDesiredSize.X, ChildDesiredSize.X, static_cast<double>(MinDesiredSlotWidth.Get())});
			MaxChildDesiredSize.Y = std::max({MaxChildDesiredSize.Y, ChildDesiredSize.Y, static_cast<double>(MinDesiredSlotHeight.Get())});
		}
	}
	return FVector2D(NumColumns * MaxChildDesiredSize.X, NumRows * MaxChildDesiredSize.Y);
}
