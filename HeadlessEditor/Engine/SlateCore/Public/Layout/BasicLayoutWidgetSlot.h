#pragma once

#include "CoreMinimal.h"
#include "Layout/Margin.h"
#include "Misc/Attribute.h"
#include "SlotBase.h"
#include "Types/SlateEnums.h"
#include "Widgets/InvalidateWidgetReason.h"

/** A slot with padding and horizontal and vertical alignment. */
template <typename SlotType>
class TBasicLayoutWidgetSlot : public TSlotBase<SlotType>
{
public:
	TBasicLayoutWidgetSlot()
		: HAlignment(HAlign_Fill)
		, VAlignment(VAlign_Fill)
	{
	}
	TBasicLayoutWidgetSlot(const EHorizontalAlignment InHAlign, const EVerticalAlignment InVAlign)
		: HAlignment(InHAlign)
		, VAlignment(InVAlign)
	{
	}

	struct FSlotArguments : public TSlotBase<SlotType>::FSlotArguments
	{
		using TSlotBase<SlotType>::FSlotArguments::FSlotArguments;

		typename SlotType::FSlotArguments& Padding(TAttribute<FMargin> InPadding)
		{
			_Padding = MoveTemp(InPadding);
			return this->Me();
		}
		typename SlotType::FSlotArguments& Padding(float Uniform) { return Padding(TAttribute<FMargin>(FMargin(Uniform))); }
		typename SlotType::FSlotArguments& Padding(float Horizontal, float Vertical) { return Padding(TAttribute<FMargin>(FMargin(Horizontal, Vertical))); }
		typename SlotType::FSlotArguments& Padding(float Left, float Top, float Right, float Bottom) { return Padding(TAttribute<FMargin>(FMargin(Left, Top, Right, Bottom))); }
		typename SlotType::FSlotArguments& HAlign(EHorizontalAlignment InHAlignment)
		{
			_HAlignment = InHAlignment;
			return this->Me();
		}
		typename SlotType::FSlotArguments& VAlign(EVerticalAlignment InVAlignment)
		{
			_VAlignment = InVAlignment;
			return this->Me();
		}

		TAttribute<FMargin> _Padding;
		TOptional<EHorizontalAlignment> _HAlignment;
		TOptional<EVerticalAlignment> _VAlignment;
	};

	void Construct(const FChildren& SlotOwner, FSlotArguments&& InArgs)
	{
		if (InArgs._Padding.IsSet())
		{
			SlotPadding = MoveTemp(InArgs._Padding);
		}
		if (InArgs._HAlignment.IsSet())
		{
			HAlignment = InArgs._HAlignment.GetValue();
		}
		if (InArgs._VAlignment.IsSet())
		{
			VAlignment = InArgs._VAlignment.GetValue();
		}
		TSlotBase<SlotType>::Construct(SlotOwner, MoveTemp(InArgs));
	}

	void SetPadding(TAttribute<FMargin> InPadding) { SlotPadding = MoveTemp(InPadding); }
	FMargin GetPadding() const { return SlotPadding.Get(); }
	void SetHorizontalAlignment(EHorizontalAlignment Alignment) { HAlignment = Alignment; }
	EHorizontalAlignment GetHorizontalAlignment() const { return HAlignment; }
	void SetVerticalAlignment(EVerticalAlignment Alignment) { VAlignment = Alignment; }
	EVerticalAlignment GetVerticalAlignment() const { return VAlignment; }

private:
	EHorizontalAlignment HAlignment;
	EVerticalAlignment VAlignment;
	TAttribute<FMargin> SlotPadding;
};

/** The plain padded, aligned slot. */
class FBasicLayoutWidgetSlot : public TBasicLayoutWidgetSlot<FBasicLayoutWidgetSlot>
{
public:
	using TBasicLayoutWidgetSlot<FBasicLayoutWidgetSlot>::TBasicLayoutWidgetSlot;
};
