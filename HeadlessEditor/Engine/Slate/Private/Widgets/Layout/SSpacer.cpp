#include "Widgets/Layout/SSpacer.h"

SSpacer::SSpacer()
	: SpacerSize(FVector2D::ZeroVector)
{
	SetCanTick(false);
}

void SSpacer::Construct(const FArguments& InArgs)
{
	SetSize(InArgs._Size);
}

int32 SSpacer::OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	// A spacer draws nothing, so the layer stays where it was.
	return LayerId;
}

FVector2D SSpacer::ComputeDesiredSize(float) const
{
	return SpacerSize.Get();
}
