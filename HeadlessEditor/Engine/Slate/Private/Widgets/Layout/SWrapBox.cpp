#include "Widgets/Layout/SWrapBox.h"

#include "Layout/ArrangedChildren.h"
#include "Layout/LayoutUtils.h"

#include <algorithm>
#include <cmath>

/**
 * Places the slots one after another along the box's direction and starts a new line when the next
 * slot would pass the preferred size (or asks for a line of its own). Every slot of a line is as
 * thick as the thickest one; inner slot padding goes between slots and between lines.
 */
class SWrapBox::FChildArranger
{
public:
	struct FPlacement
	{
		int32 SlotIndex;
		FVector2D Offset;
		FVector2D Size;
		/** The length of the slot's line along the box, inner padding included. */
		float LineLength;
		/** Whether the slot is the first of its line. */
		bool bStartsLine;
	};

	static TArray<FPlacement> Arrange(const SWrapBox& WrapBox)
	{
		FChildArranger Arranger(WrapBox);
		for (int32 Index = 0; Index < WrapBox.Slots.Num(); ++Index)
		{
			if (WrapBox.Slots[Index].GetWidget()->GetVisibility() != EVisibility::Collapsed)
			{
				Arranger.Place(Index);
			}
		}
		Arranger.FinishLine();
		return Arranger.Placements;
	}

private:
	explicit FChildArranger(const SWrapBox& InWrapBox)
		: WrapBox(InWrapBox)
		, bHorizontal(InWrapBox.Orientation == Orient_Horizontal)
		, WrapSize(InWrapBox.PreferredSize.Get())
		, InnerAlong(static_cast<float>(bHorizontal ? InWrapBox.InnerSlotPadding.X : InWrapBox.InnerSlotPadding.Y))
		, InnerAcross(static_cast<float>(bHorizontal ? InWrapBox.InnerSlotPadding.Y : InWrapBox.InnerSlotPadding.X))
	{
	}

	void Place(int32 SlotIndex)
	{
		const FSlot& Slot = WrapBox.Slots[SlotIndex];
		const FVector2D Desired = Slot.GetWidget()->GetDesiredSize() + Slot.GetPadding().GetDesiredSize();
		float Length = static_cast<float>(bHorizontal ? Desired.X : Desired.Y);
		const float Thickness = static_cast<float>(bHorizontal ? Desired.Y : Desired.X);

		const bool bOwnLine = Slot.GetFillLineWhenSizeLessThan().IsSet() && WrapSize < Slot.GetFillLineWhenSizeLessThan().GetValue();
		const float Start = LineSlots.Num() > 0 ? Along + InnerAlong : 0.0f;
		if (LineSlots.Num() > 0 && (Slot.GetForceNewLine() || bOwnLine || Start + Length > WrapSize))
		{
			FinishLine();
		}
		const float SlotStart = LineSlots.Num() > 0 ? Along + InnerAlong : 0.0f;
		if (bOwnLine)
		{
			Length = WrapSize - SlotStart;
		}
		LineSlots.Add({SlotIndex, SlotStart, Length});
		Along = SlotStart + Length;
		LineThickness = std::max(LineThickness, Thickness);
	}

	void FinishLine()
	{
		if (LineSlots.Num() == 0)
		{
			return;
		}
		FLineSlot& Last = LineSlots.Last();
		if (WrapBox.Slots[Last.SlotIndex].GetFillEmptySpace())
		{
			Last.Length = WrapSize - Last.Start;
			Along = WrapSize;
		}
		for (int32 Index = 0; Index < LineSlots.Num(); ++Index)
		{
			const FLineSlot& LineSlot = LineSlots[Index];
			const FVector2D Offset = bHorizontal ? FVector2D(LineSlot.Start, LineStart) : FVector2D(LineStart, LineSlot.Start);
			const FVector2D Size = bHorizontal ? FVector2D(LineSlot.Length, LineThickness) : FVector2D(LineThickness, LineSlot.Length);
			Placements.Add({LineSlot.SlotIndex, Offset, Size, Along, Index == 0});
		}
		LineStart += LineThickness + InnerAcross;
		LineSlots.Reset();
		Along = 0.0f;
		LineThickness = 0.0f;
	}

	struct FLineSlot
	{
		int32 SlotIndex;
		float Start;
		float Length;
	};

	const SWrapBox& WrapBox;
	const bool bHorizontal;
	const float WrapSize;
	const float InnerAlong;
	const float InnerAcross;
	TArray<FLineSlot> LineSlots;
	float Along = 0.0f;
	float LineThickness = 0.0f;
	float LineStart = 0.0f;
	TArray<FPlacement> Placements;
};

void SWrapBox::FSlot::Construct(const FChildren& SlotOwner, FSlotArguments&& InArgs)
{
	SlotFillLineWhenSizeLessThan = InArgs._FillLineWhenSizeLessThan;
	if (InArgs._FillEmptySpace.IsSet())
	{
		bSlotFillEmptySpace = InArgs._FillEmptySpace.GetValue();
	}
	if (InArgs._ForceNewLine.IsSet())
	{
		bSlotForceNewLine = InArgs._ForceNewLine.GetValue();
	}
	TBasicLayoutWidgetSlot<FSlot>::Construct(SlotOwner, MoveTemp(InArgs));
}

SWrapBox::FSlot::FSlotArguments SWrapBox::Slot()
{
	return FSlot::FSlotArguments(MakeUnique<FSlot>());
}

SWrapBox::SWrapBox()
	: Slots(this)
	, InnerSlotPadding(0.0, 0.0)
	, bUseAllottedSize(false)
	, Orientation(Orient_Horizontal)
{
}

void SWrapBox::Construct(const FArguments& InArgs)
{
	PreferredSize = InArgs._PreferredSize;
	HAlign = InArgs._HAlign;
	InnerSlotPadding = InArgs._InnerSlotPadding;
	SetUseAllottedSize(InArgs._UseAllottedSize);
	Orientation = InArgs._Orientation;
	Slots.AddSlots(MoveTemp(const_cast<TArray<FSlot::FSlotArguments>&>(InArgs._Slots)));
}

SWrapBox::FScopedWidgetSlotArguments SWrapBox::AddSlot()
{
	return FScopedWidgetSlotArguments{MakeUnique<FSlot>(), Slots, INDEX_NONE};
}

int32 SWrapBox::RemoveSlot(const TSharedRef<SWidget>& SlotWidget)
{
	for (int32 SlotIdx = 0; SlotIdx < Slots.Num(); ++SlotIdx)
	{
		if (SlotWidget == Slots[SlotIdx].GetWidget())
		{
			Slots.RemoveAt(SlotIdx);
			return SlotIdx;
		}
	}
	return INDEX_NONE;
}

void SWrapBox::SetUseAllottedSize(bool bInUseAllottedSize)
{
	// The box learns the room it has when it is painted, and wraps at it from then on.
	bUseAllottedSize = bInUseAllottedSize;
	SetCanTick(bUseAllottedSize);
}

void SWrapBox::Tick(const FGeometry& AllottedGeometry, const double InCurrentTime, const float InDeltaTime)
{
	if (bUseAllottedSize)
	{
		PreferredSize = static_cast<float>(Orientation == Orient_Vertical ? AllottedGeometry.GetLocalSize().Y : AllottedGeometry.GetLocalSize().X);
	}
}

void SWrapBox::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	const EHorizontalAlignment LineAlignment = HAlign.Get();
	const float BoxWidth = static_cast<float>(AllottedGeometry.GetLocalSize().X);
	float LineShift = 0.0f;
	for (const FChildArranger::FPlacement& Placement : FChildArranger::Arrange(*this))
	{
		const FSlot& Slot = Slots[Placement.SlotIndex];
		FVector2D SlotSize = Placement.Size;
		float FillGrowth = 0.0f;
		// Horizontal lines are aligned in the box as a whole; a filling alignment stretches each slot.
		if (Orientation == Orient_Horizontal)
		{
			if (Placement.bStartsLine)
			{
				LineShift = 0.0f;
			}
			switch (LineAlignment)
			{
				case HAlign_Right:
					LineShift = std::floor(BoxWidth - Placement.LineLength);
					break;
				case HAlign_Center:
					LineShift = std::floor((BoxWidth - Placement.LineLength) / 2.0f);
					break;
				case HAlign_Fill:
				{
					const double Stretched = SlotSize.X / Placement.LineLength * BoxWidth;
					FillGrowth = static_cast<float>(Stretched - SlotSize.X);
					SlotSize.X = Stretched;
					break;
				}
				default:
					break;
			}
		}
		const AlignmentArrangeResult XResult = AlignChild<Orient_Horizontal>(static_cast<float>(SlotSize.X), Slot, Slot.GetPadding());
		const AlignmentArrangeResult YResult = AlignChild<Orient_Vertical>(static_cast<float>(SlotSize.Y), Slot, Slot.GetPadding());
		const FVector2D Offset = Placement.Offset + FVector2D(XResult.Offset + LineShift, YResult.Offset);
		ArrangedChildren.AddWidget(AllottedGeometry.MakeChild(Slot.GetWidget(), Offset, FVector2D(XResult.Size, YResult.Size)));
		LineShift += FillGrowth;
	}
}

FVector2D SWrapBox::ComputeDesiredSize(float) const
{
	FVector2D Extent(0.0, 0.0);
	for (const FChildArranger::FPlacement& Placement : FChildArranger::Arrange(*this))
	{
		Extent = Extent.ComponentMax(Placement.Offset + Placement.Size);
	}
	return Extent;
}
