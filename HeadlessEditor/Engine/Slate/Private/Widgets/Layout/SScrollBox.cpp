#include "Widgets/Layout/SScrollBox.h"

SScrollBox::FSlot::FSlotArguments SScrollBox::Slot()
{
	return FSlot::FSlotArguments(MakeUnique<FSlot>());
}

SScrollBox::SScrollBox()
	: Children(this)
	, Orientation(Orient_Vertical)
{
}

void SScrollBox::Construct(const FArguments& InArgs)
{
	Orientation = InArgs._Orientation;
	Children.AddSlots(MoveTemp(const_cast<TArray<FSlot::FSlotArguments>&>(InArgs._Slots)));
}

SScrollBox::FScopedWidgetSlotArguments SScrollBox::AddSlot()
{
	return FScopedWidgetSlotArguments{MakeUnique<FSlot>(), Children, INDEX_NONE};
}
