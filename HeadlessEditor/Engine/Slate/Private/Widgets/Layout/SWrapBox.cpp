#include "Widgets/Layout/SWrapBox.h"

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
	bUseAllottedSize = InArgs._UseAllottedSize;
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
