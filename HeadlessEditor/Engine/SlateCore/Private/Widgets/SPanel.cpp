#include "Widgets/SPanel.h"

#include "Layout/ArrangedChildren.h"
#include "Types/PaintArgs.h"

#include <algorithm>

void SPanel::SetVisibility(TAttribute<EVisibility> InVisibility)
{
	SWidget::SetVisibility(MoveTemp(InVisibility));
}

int32 SPanel::OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	FArrangedChildren ArrangedChildren(EVisibility::Visible);
	ArrangeChildren(AllottedGeometry, ArrangedChildren);
	return PaintArrangedChildren(Args, ArrangedChildren, AllottedGeometry, MyCullingRect, OutDrawElements, LayerId, InWidgetStyle, bParentEnabled);
}

int32 SPanel::PaintArrangedChildren(const FPaintArgs& Args, const FArrangedChildren& ArrangedChildren, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	int32 MaxLayerId = LayerId;
	const FPaintArgs NewArgs = Args.WithNewParent(this);
	const bool bShouldBeEnabled = ShouldBeEnabled(bParentEnabled);
	for (int32 ChildIndex = 0; ChildIndex < ArrangedChildren.Num(); ++ChildIndex)
	{
		const FArrangedWidget& Child = ArrangedChildren[ChildIndex];
		// Children outside the area being drawn are not painted at all.
		if (FSlateRect::DoRectanglesIntersect(MyCullingRect, Child.Geometry.GetLayoutBoundingRect()))
		{
			MaxLayerId = std::max(MaxLayerId, Child.Widget->Paint(NewArgs, Child.Geometry, MyCullingRect, OutDrawElements, LayerId, InWidgetStyle, bShouldBeEnabled));
		}
	}
	return MaxLayerId;
}
