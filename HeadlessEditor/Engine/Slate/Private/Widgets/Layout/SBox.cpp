#include "Widgets/Layout/SBox.h"

#include "Layout/ArrangedChildren.h"
#include "Layout/LayoutUtils.h"

#include <algorithm>

SBox::SBox()
	: ChildSlot(this)
{
}

void SBox::Construct(const FArguments& InArgs)
{
	WidthOverride = InArgs._WidthOverride;
	HeightOverride = InArgs._HeightOverride;
	MinDesiredWidth = InArgs._MinDesiredWidth;
	MinDesiredHeight = InArgs._MinDesiredHeight;
	MaxDesiredWidth = InArgs._MaxDesiredWidth;
	MaxDesiredHeight = InArgs._MaxDesiredHeight;
	MinAspectRatio = InArgs._MinAspectRatio;
	MaxAspectRatio = InArgs._MaxAspectRatio;

	ChildSlot
		.HAlign(InArgs._HAlign)
		.VAlign(InArgs._VAlign)
		.Padding(InArgs._Padding)
			[InArgs._Content.Widget];
}

namespace
{
	/** Keeps a length within an optional minimum and maximum. */
	float ClampToOptionalBounds(float Length, const FOptionalSize& Min, const FOptionalSize& Max)
	{
		if (Min.IsSet())
		{
			Length = std::max(Length, Min.Get());
		}
		if (Max.IsSet())
		{
			Length = std::min(Length, Max.Get());
		}
		return Length;
	}
}

FVector2D SBox::ComputeDesiredSize(float) const
{
	if (ChildSlot.GetWidget()->GetVisibility() == EVisibility::Collapsed)
	{
		return FVector2D::ZeroVector;
	}
	const FOptionalSize Width = WidthOverride.Get();
	const FOptionalSize Height = HeightOverride.Get();
	return FVector2D(Width.IsSet() ? Width.Get() : ComputeDesiredWidth(), Height.IsSet() ? Height.Get() : ComputeDesiredHeight());
}

float SBox::ComputeDesiredWidth() const
{
	const float ContentWidth = static_cast<float>(ChildSlot.GetWidget()->GetDesiredSize().X + ChildSlot.GetPadding().GetDesiredSize().X);
	return ClampToOptionalBounds(ContentWidth, MinDesiredWidth.Get(), MaxDesiredWidth.Get());
}

float SBox::ComputeDesiredHeight() const
{
	const float ContentHeight = static_cast<float>(ChildSlot.GetWidget()->GetDesiredSize().Y + ChildSlot.GetPadding().GetDesiredSize().Y);
	return ClampToOptionalBounds(ContentHeight, MinDesiredHeight.Get(), MaxDesiredHeight.Get());
}

void SBox::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	const EVisibility ChildVisibility = ChildSlot.GetWidget()->GetVisibility();
	if (!ArrangedChildren.Accepts(ChildVisibility))
	{
		return;
	}
	const FMargin SlotPadding(ChildSlot.GetPadding());
	const FVector2D Allotted = AllottedGeometry.GetLocalSize();
	AlignmentArrangeResult XResult = AlignChild<Orient_Horizontal>(static_cast<float>(Allotted.X), ChildSlot, SlotPadding);
	AlignmentArrangeResult YResult = AlignChild<Orient_Vertical>(static_cast<float>(Allotted.Y), ChildSlot, SlotPadding);

	// An allotted shape wider or narrower than the allowed aspect ratios gives the content that ratio
	// instead, from the aligned width, as large as fits inside the padding.
	const FOptionalSize MinRatio = MinAspectRatio.Get();
	const FOptionalSize MaxRatio = MaxAspectRatio.Get();
	const FVector2D ChildDesired = ChildSlot.GetWidget()->GetDesiredSize();
	if ((MinRatio.IsSet() || MaxRatio.IsSet()) && Allotted.Y > 0.0 && std::min(Allotted.X, ChildDesired.X) > 0.0 && std::min(Allotted.Y, ChildDesired.Y) > 0.0)
	{
		const float AllottedRatio = static_cast<float>(Allotted.X / Allotted.Y);
		const float TargetRatio = MaxRatio.IsSet() && MaxRatio.Get() != 0.0f && AllottedRatio > MaxRatio.Get() ? MaxRatio.Get()
			: MinRatio.IsSet() && MinRatio.Get() != 0.0f && AllottedRatio < MinRatio.Get()                     ? MinRatio.Get()
																											   : 0.0f;
		if (TargetRatio > 0.0f)
		{
			float NewWidth = TargetRatio * XResult.Size;
			float NewHeight = NewWidth / TargetRatio;
			const float FitScale = std::min({1.0f, static_cast<float>(Allotted.X - SlotPadding.GetTotalSpaceAlong<Orient_Horizontal>()) / NewWidth, static_cast<float>(Allotted.Y - SlotPadding.GetTotalSpaceAlong<Orient_Vertical>()) / NewHeight});
			XResult.Size = NewWidth * FitScale;
			YResult.Size = NewHeight * FitScale;
		}
	}

	ArrangedChildren.AddWidget(ChildVisibility, AllottedGeometry.MakeChild(ChildSlot.GetWidget(), FVector2D(XResult.Offset, YResult.Offset), FVector2D(XResult.Size, YResult.Size)));
}
