#include "SConstrainedBox.h"

#include <algorithm>

void SConstrainedBox::Construct(const FArguments& InArgs)
{
	MinWidth = InArgs._MinWidth;
	MaxWidth = InArgs._MaxWidth;
	ChildSlot[InArgs._Content.Widget];
}

FVector2D SConstrainedBox::ComputeDesiredSize(float LayoutScaleMultiplier) const
{
	const float Min = MinWidth.Get().Get(0.0f);
	const float Max = MaxWidth.Get().Get(0.0f);
	const FVector2D ContentSize = ChildSlot.GetWidget()->GetDesiredSize();
	float Width = std::max(Min, static_cast<float>(ContentSize.X));
	// A maximum no larger than the minimum leaves the width unbounded above, as the engine has it.
	if (Max > Min)
	{
		Width = std::min(Max, Width);
	}
	return FVector2D(Width, ContentSize.Y);
}
