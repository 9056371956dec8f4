#include "Layout/Children.h"

#include "Widgets/SNullWidget.h"

FNoChildren FNoChildren::NoChildrenInstance;

TSharedRef<SWidget> FNoChildren::GetChildAt(int32 Index)
{
	checkf(false, TEXT("FNoChildren has no child at index %d"), Index);
	return SNullWidget::NullWidget;
}

TSharedRef<const SWidget> FNoChildren::GetChildAt(int32 Index) const
{
	checkf(false, TEXT("FNoChildren has no child at index %d"), Index);
	return SNullWidget::NullWidget;
}

const FSlotBase& FNoChildren::GetSlotAt(int32 ChildIndex) const
{
	checkf(false, TEXT("FNoChildren has no slot at index %d"), ChildIndex);
	static const FSlotBase NoSlot;
	return NoSlot;
}
