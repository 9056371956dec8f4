#include "Widgets/SBoxPanel.h"

namespace
{
	template <typename SlotType, typename ArgumentsType>
	void ApplySizeArguments(SlotType& Slot, ArgumentsType& InArgs)
	{
		if (InArgs._SizeRule.IsSet())
		{
			if (InArgs._SizeRule.GetValue() == FSizeParam::SizeRule_Auto)
			{
				Slot.SetAutoSize();
			}
			else
			{
				Slot.SetSizeToStretch(InArgs._StretchCoefficient.IsSet() ? InArgs._StretchCoefficient : TAttribute<float>(1.0f));
			}
		}
		if (InArgs._MaxSize.IsSet())
		{
			Slot.SetMaxSize(InArgs._MaxSize);
		}
	}
}

void SHorizontalBox::FSlot::Construct(const FChildren& SlotOwner, FSlotArguments&& InArgs)
{
	ApplySizeArguments(*this, InArgs);
	SBoxPanel::TSlot<FSlot>::Construct(SlotOwner, MoveTemp(InArgs));
}

SHorizontalBox::FSlot::FSlotArguments SHorizontalBox::Slot()
{
	return FSlot::FSlotArguments(MakeUnique<FSlot>());
}

SHorizontalBox::SHorizontalBox()
	: SBoxPanel(Orient_Horizontal)
	, Children(this)
{
}

void SHorizontalBox::Construct(const FArguments& InArgs)
{
	// The declaration's slots are handed over to the panel, as the engine does.
	Children.AddSlots(MoveTemp(const_cast<TArray<FSlot::FSlotArguments>&>(InArgs._Slots)));
}

SHorizontalBox::FScopedWidgetSlotArguments SHorizontalBox::AddSlot()
{
	return InsertSlot(INDEX_NONE);
}

SHorizontalBox::FScopedWidgetSlotArguments SHorizontalBox::InsertSlot(int32 Index)
{
	return FScopedWidgetSlotArguments{MakeUnique<FSlot>(), Children, Index};
}

void SVerticalBox::FSlot::Construct(const FChildren& SlotOwner, FSlotArguments&& InArgs)
{
	ApplySizeArguments(*this, InArgs);
	SBoxPanel::TSlot<FSlot>::Construct(SlotOwner, MoveTemp(InArgs));
}

SVerticalBox::FSlot::FSlotArguments SVerticalBox::Slot()
{
	return FSlot::FSlotArguments(MakeUnique<FSlot>());
}

SVerticalBox::SVerticalBox()
	: SBoxPanel(Orient_Vertical)
	, Children(this)
{
}

void SVerticalBox::Construct(const FArguments& InArgs)
{
	Children.AddSlots(MoveTemp(const_cast<TArray<FSlot::FSlotArguments>&>(InArgs._Slots)));
}

SVerticalBox::FScopedWidgetSlotArguments SVerticalBox::AddSlot()
{
	return InsertSlot(INDEX_NONE);
}

SVerticalBox::FScopedWidgetSlotArguments SVerticalBox::InsertSlot(int32 Index)
{
	return FScopedWidgetSlotArguments{MakeUnique<FSlot>(), Children, Index};
}
