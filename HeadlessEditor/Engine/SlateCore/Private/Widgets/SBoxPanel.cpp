#include "Widgets/SBoxPanel.h"

#include "Layout/ArrangedChildren.h"
#include "Layout/LayoutUtils.h"

#include <algorithm>

namespace
{
	/** The slot's length along the box: its desired length, or its stretch share, capped by its max size. */
	template <EOrientation Orientation, typename SlotType>
	float GetDesiredLengthAlong(const SlotType& Slot)
	{
		const FVector2D ChildDesiredSize = Slot.GetWidget()->GetDesiredSize();
		const float Length = static_cast<float>(Orientation == Orient_Vertical ? ChildDesiredSize.Y : ChildDesiredSize.X);
		const float MaxSize = Slot.GetMaxSize();
		return MaxSize > 0.0f ? std::min(MaxSize, Length) : Length;
	}

	bool IsCollapsed(const FSlotBase& Slot)
	{
		return Slot.GetWidget()->GetVisibility() == EVisibility::Collapsed;
	}

	/**
	 * Auto slots get their desired length, stretch slots share what is left of the box after the auto
	 * slots and every padding, in proportion to their coefficients; the other direction is the box's.
	 * Collapsed children take no space at all.
	 */
	template <EOrientation Orientation, typename SlotType>
	void ArrangeAlong(const TPanelChildren<SlotType>& Children, const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren)
	{
		float StretchTotal = 0.0f;
		float FixedTotal = 0.0f;
		for (int32 Index = 0; Index < Children.Num(); ++Index)
		{
			const SlotType& Slot = Children[Index];
			if (IsCollapsed(Slot))
			{
				continue;
			}
			FixedTotal += Slot.GetPadding().template GetTotalSpaceAlong<Orientation>();
			if (Slot.GetSizeRule() == FSizeParam::SizeRule_Stretch)
			{
				StretchTotal += Slot.GetSizeValue();
			}
			else
			{
				FixedTotal += GetDesiredLengthAlong<Orientation>(Slot);
			}
		}

		const FVector2D BoxSize = AllottedGeometry.GetLocalSize();
		const float BoxLength = static_cast<float>(Orientation == Orient_Vertical ? BoxSize.Y : BoxSize.X);
		const float FreeSpace = std::max(0.0f, BoxLength - FixedTotal);

		float PositionSoFar = 0.0f;
		for (int32 Index = 0; Index < Children.Num(); ++Index)
		{
			const SlotType& Slot = Children[Index];
			const EVisibility ChildVisibility = Slot.GetWidget()->GetVisibility();
			const bool bCollapsed = ChildVisibility == EVisibility::Collapsed;

			float ChildLength = 0.0f;
			if (!bCollapsed)
			{
				if (Slot.GetSizeRule() == FSizeParam::SizeRule_Stretch)
				{
					ChildLength = StretchTotal > 0.0f ? FreeSpace * Slot.GetSizeValue() / StretchTotal : 0.0f;
					const float MaxSize = Slot.GetMaxSize();
					ChildLength = MaxSize > 0.0f ? std::min(MaxSize, ChildLength) : ChildLength;
				}
				else
				{
					ChildLength = GetDesiredLengthAlong<Orientation>(Slot);
				}
			}

			const FMargin SlotPadding = Slot.GetPadding();
			const float SlotLength = ChildLength + SlotPadding.template GetTotalSpaceAlong<Orientation>();
			const FVector2D SlotSize = Orientation == Orient_Vertical ? FVector2D(BoxSize.X, SlotLength) : FVector2D(SlotLength, BoxSize.Y);
			const AlignmentArrangeResult XResult = AlignChild<Orient_Horizontal>(static_cast<float>(SlotSize.X), Slot, SlotPadding);
			const AlignmentArrangeResult YResult = AlignChild<Orient_Vertical>(static_cast<float>(SlotSize.Y), Slot, SlotPadding);
			const FVector2D Offset = Orientation == Orient_Vertical ? FVector2D(XResult.Offset, PositionSoFar + YResult.Offset) : FVector2D(PositionSoFar + XResult.Offset, YResult.Offset);
			ArrangedChildren.AddWidget(ChildVisibility, AllottedGeometry.MakeChild(Slot.GetWidget(), Offset, FVector2D(XResult.Size, YResult.Size)));

			if (!bCollapsed)
			{
				PositionSoFar += SlotLength;
			}
		}
	}

	/** The box wants the sum of its slots along its direction and the largest slot across it, paddings included. */
	template <EOrientation Orientation, typename SlotType>
	FVector2D ComputeBoxDesiredSize(const TPanelChildren<SlotType>& Children)
	{
		float Along = 0.0f;
		float Across = 0.0f;
		for (int32 Index = 0; Index < Children.Num(); ++Index)
		{
			const SlotType& Slot = Children[Index];
			if (IsCollapsed(Slot))
			{
				continue;
			}
			const FVector2D ChildDesiredSize = Slot.GetWidget()->GetDesiredSize();
			const FMargin Padding = Slot.GetPadding();
			if (Orientation == Orient_Vertical)
			{
				Across = std::max(Across, static_cast<float>(ChildDesiredSize.X) + Padding.GetTotalSpaceAlong<Orient_Horizontal>());
				Along += GetDesiredLengthAlong<Orientation>(Slot) + Padding.GetTotalSpaceAlong<Orient_Vertical>();
			}
			else
			{
				Across = std::max(Across, static_cast<float>(ChildDesiredSize.Y) + Padding.GetTotalSpaceAlong<Orient_Vertical>());
				Along += GetDesiredLengthAlong<Orientation>(Slot) + Padding.GetTotalSpaceAlong<Orient_Horizontal>();
			}
		}
		return Orientation == Orient_Vertical ? FVector2D(Across, Along) : FVector2D(Along, Across);
	}

	/** Calls Visitor with the box's typed slots: each box type keeps its own slot type. */
	template <typename BoxType, typename VisitorType>
	auto VisitBoxSlots(BoxType& Box, EOrientation Orientation, VisitorType&& Visitor)
	{
		using FHorizontalChildren = std::conditional_t<std::is_const_v<BoxType>, const TPanelChildren<SHorizontalBox::FSlot>, TPanelChildren<SHorizontalBox::FSlot>>;
		using FVerticalChildren = std::conditional_t<std::is_const_v<BoxType>, const TPanelChildren<SVerticalBox::FSlot>, TPanelChildren<SVerticalBox::FSlot>>;
		FChildren& Children = *const_cast<std::remove_const_t<BoxType>&>(Box).GetChildren();
		return Orientation == Orient_Horizontal
			? Visitor(static_cast<FHorizontalChildren&>(Children), std::integral_constant<EOrientation, Orient_Horizontal>())
			: Visitor(static_cast<FVerticalChildren&>(Children), std::integral_constant<EOrientation, Orient_Vertical>());
	}
}

SBoxPanel::SBoxPanel(EOrientation InOrientation)
	: Orientation(InOrientation)
{
}

void SBoxPanel::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	VisitBoxSlots(*this, Orientation, [&](const auto& Children, auto Along)
		{ ArrangeAlong<decltype(Along)::value>(Children, AllottedGeometry, ArrangedChildren); });
}

FVector2D SBoxPanel::ComputeDesiredSize(float) const
{
	return VisitBoxSlots(*this, Orientation, [](const auto& Children, auto Along)
		{ return ComputeBoxDesiredSize<decltype(Along)::value>(Children); });
}

int32 SBoxPanel::RemoveSlot(const TSharedRef<SWidget>& SlotWidget)
{
	return VisitBoxSlots(*this, Orientation, [&SlotWidget](auto& Children, auto)
		{
			for (int32 Index = 0; Index < Children.Num(); ++Index)
			{
				if (Children[Index].GetWidget() == SlotWidget)
				{
					Children.RemoveAt(Index);
					return Index;
				}
			}
			return static_cast<int32>(INDEX_NONE); });
}

void SBoxPanel::ClearChildren()
{
	VisitBoxSlots(*this, Orientation, [](auto& Children, auto)
		{ Children.Empty(); });
}

int32 SBoxPanel::NumSlots() const
{
	return const_cast<SBoxPanel*>(this)->GetChildren()->Num();
}

bool SBoxPanel::IsValidSlotIndex(int32 Index) const
{
	return Index >= 0 && Index < NumSlots();
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

SHorizontalBox::FSlot& SHorizontalBox::GetSlot(int32 SlotIndex)
{
	check(IsValidSlotIndex(SlotIndex));
	return Children[SlotIndex];
}

const SHorizontalBox::FSlot& SHorizontalBox::GetSlot(int32 SlotIndex) const
{
	check(IsValidSlotIndex(SlotIndex));
	return Children[SlotIndex];
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

SVerticalBox::FSlot& SVerticalBox::GetSlot(int32 SlotIndex)
{
	check(IsValidSlotIndex(SlotIndex));
	return Children[SlotIndex];
}

const SVerticalBox::FSlot& SVerticalBox::GetSlot(int32 SlotIndex) const
{
	check(IsValidSlotIndex(SlotIndex));
	return Children[SlotIndex];
}
