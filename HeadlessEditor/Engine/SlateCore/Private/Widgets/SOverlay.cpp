#include "Widgets/SOverlay.h"

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

bool SOverlay::RemoveSlot(int32 ZOrder)
{
	for (int32 Index = 0; Index < Children.Num(); ++Index)
	{
		if (Children[Index].ZOrder == ZOrder)
		{
			Children.RemoveAt(Index);
			return true;
		}
	}
	return false;
}
