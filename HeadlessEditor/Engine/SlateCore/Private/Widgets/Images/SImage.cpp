#include "Widgets/Images/SImage.h"

#include "Rendering/DrawElements.h"
#include "Styling/WidgetStyle.h"

SImage::SImage()
	: bFlipForRightToLeftFlowDirection(false)
{
}

void SImage::Construct(const FArguments& InArgs)
{
	Image = InArgs._Image;
	ColorAndOpacity = InArgs._ColorAndOpacity;
	DesiredSizeOverride = InArgs._DesiredSizeOverride;
	bFlipForRightToLeftFlowDirection = InArgs._FlipForRightToLeftFlowDirection;
}

FVector2D SImage::ComputeDesiredSize(float) const
{
	const FSlateBrush* ImageBrush = Image.Get();
	if (ImageBrush == nullptr)
	{
		return FVector2D::ZeroVector;
	}
	const TOptional<FVector2D> SizeOverride = DesiredSizeOverride.Get();
	return SizeOverride.IsSet() ? SizeOverride.GetValue() : ImageBrush->ImageSize;
}

int32 SImage::OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	const FSlateBrush* ImageBrush = Image.Get();
	if (ImageBrush != nullptr && ImageBrush->DrawAs != ESlateBrushDrawType::NoDrawType)
	{
		const ESlateDrawEffect DrawEffects = ShouldBeEnabled(bParentEnabled) ? ESlateDrawEffect::None : ESlateDrawEffect::DisabledEffect;
		const FLinearColor FinalColorAndOpacity = InWidgetStyle.GetColorAndOpacityTint() * ColorAndOpacity.Get().GetColor(InWidgetStyle) * ImageBrush->GetTint(InWidgetStyle);
		FSlateDrawElement::MakeBox(OutDrawElements, LayerId, AllottedGeometry.ToPaintGeometry(), ImageBrush, DrawEffects, FinalColorAndOpacity);
	}
	return LayerId;
}
