#pragma once

#include "CoreMinimal.h"
#include "Layout/Children.h"
#include "Misc/Attribute.h"
#include "Widgets/SWidget.h"

class FArrangedChildren;

/** A widget with no children, such as a text block or an image. */
class SLATECORE_API SLeafWidget : public SWidget
{
public:
	SLeafWidget() {}

	virtual void SetVisibility(TAttribute<EVisibility> InVisibility) override final;

private:
	virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override = 0;
	virtual FVector2D ComputeDesiredSize(float) const override = 0;
	virtual FChildren* GetChildren() override;
	virtual void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;
};
