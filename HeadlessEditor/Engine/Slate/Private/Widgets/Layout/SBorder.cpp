#include "Widgets/Layout/SBorder.h"

#include "Rendering/DrawElements.h"
#include "Styling/WidgetStyle.h"

SBorder::SBorder()
	: BorderImageAttribute(FCoreStyle::Get().GetBrush("Border"))
	, BorderBackgroundColorAttribute(FLinearColor::White)
	, DesiredSizeScaleAttribute(FVector2D(1, 1))
	, ShowDisabledEffectAttribute(true)
{
}

void SBorder::Construct(const FArguments& InArgs)
{
	SetContentScale(InArgs._ContentScale);
	SetColorAndOpacity(InArgs._ColorAndOpacity);
	SetForegroundColor(InArgs._ForegroundColor);
	SetDesiredSizeScale(InArgs._DesiredSizeScale);
	SetShowEffectWhenDisabled(InArgs._ShowEffectWhenDisabled);
	SetBorderImage(InArgs._BorderImage);
	SetBorderBackgroundColor(InArgs._BorderBackgroundColor);

	ChildSlot
		.HAlign(InArgs._HAlign)
		.VAlign(InArgs._VAlign)
		.Padding(InArgs._Padding)
			[InArgs._Content.Widget];
}

void SBorder::SetContent(TSharedRef<SWidget> InContent)
{
	ChildSlot[InContent];
}

const TSharedRef<SWidget>& SBorder::GetContent() const
{
	return ChildSlot.GetWidget();
}

void SBorder::ClearContent()
{
	ChildSlot.DetachWidget();
}

int32 SBorder::OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	const FSlateBrush* BrushResource = GetBorderImage();
	const bool bEnabled = ShouldBeEnabled(bParentEnabled);
	if (BrushResource && BrushResource->DrawAs != ESlateBrushDrawType::NoDrawType)
	{
		const ESlateDrawEffect DrawEffects = GetShowDisabledEffect() && !bEnabled ? ESlateDrawEffect::DisabledEffect : ESlateDrawEffect::None;
		const FLinearColor Tint = BrushResource->GetTint(InWidgetStyle) * InWidgetStyle.GetColorAndOpacityTint() * GetBorderBackgroundColor().GetColor(InWidgetStyle);
		FSlateDrawElement::MakeBox(OutDrawElements, LayerId, AllottedGeometry.ToPaintGeometry(), BrushResource, DrawEffects, Tint);
	}
	return SCompoundWidget::OnPaint(Args, AllottedGeometry, MyCullingRect, OutDrawElements, LayerId, InWidgetStyle, bEnabled);
}

FVector2D SBorder::ComputeDesiredSize(float LayoutScaleMultiplier) const
{
	return SCompoundWidget::ComputeDesiredSize(LayoutScaleMultiplier) * GetDesiredSizeScale();
}
