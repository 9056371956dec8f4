#include "Widgets/SCompoundWidget.h"

#include "Layout/ArrangedChildren.h"
#include "Layout/LayoutUtils.h"
#include "Rendering/DrawElements.h"
#include "Styling/WidgetStyle.h"
#include "Types/PaintArgs.h"

SCompoundWidget::SCompoundWidget()
	: ChildSlot(this)
	, ContentScaleAttribute(FVector2D(1.0, 1.0))
	, ColorAndOpacityAttribute(FLinearColor::White)
	, ForegroundColorAttribute(FSlateColor::UseForeground())
{
}

int32 SCompoundWidget::OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	FArrangedChildren ArrangedChildren(EVisibility::Visible);
	ArrangeChildren(AllottedGeometry, ArrangedChildren);
	if (ArrangedChildren.Num() == 0)
	{
		return LayerId;
	}
	// The content is drawn above the widget, tinted by it and in its foreground colour.
	const bool bShouldBeEnabled = ShouldBeEnabled(bParentEnabled);
	const FArrangedWidget& TheChild = ArrangedChildren[0];
	const FWidgetStyle CompoundedWidgetStyle = FWidgetStyle(InWidgetStyle)
												   .BlendColorAndOpacityTint(GetColorAndOpacity())
												   .SetForegroundColor(bShouldBeEnabled ? GetForegroundColor() : GetDisabledForegroundColor());
	return TheChild.Widget->Paint(Args.WithNewParent(this), TheChild.Geometry, MyCullingRect, OutDrawElements, LayerId + 1, CompoundedWidgetStyle, bShouldBeEnabled);
}

FChildren* SCompoundWidget::GetChildren()
{
	return &ChildSlot;
}

FVector2D SCompoundWidget::ComputeDesiredSize(float) const
{
	const TSharedRef<SWidget>& Child = ChildSlot.GetWidget();
	if (Child->GetVisibility() == EVisibility::Collapsed)
	{
		return FVector2D::ZeroVector;
	}
	return Child->GetDesiredSize() + ChildSlot.GetPadding().GetDesiredSize();
}

void SCompoundWidget::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	ArrangeSingleChild(AllottedGeometry, ArrangedChildren, ChildSlot, GetContentScale());
}

FSlateColor SCompoundWidget::GetForegroundColor() const
{
	return ForegroundColorAttribute.Get();
}

void SCompoundWidget::SetVisibility(TAttribute<EVisibility> InVisibility)
{
	SWidget::SetVisibility(MoveTemp(InVisibility));
}
