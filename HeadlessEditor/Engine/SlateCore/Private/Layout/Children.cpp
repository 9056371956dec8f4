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
