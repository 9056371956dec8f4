#pragma once

#include "CoreMinimal.h"
#include "Layout/Children.h"
#include "Misc/Attribute.h"
#include "Widgets/SWidget.h"

class FArrangedChildren;

/** A widget that lays out any number of children, each in a slot. */
class SLATECORE_API SPanel : public SWidget
{
public:
	virtual void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override = 0;
	virtual FVector2D ComputeDesiredSize(float) const override = 0;
	virtual FChildren* GetChildren() override = 0;

public:
	void Construct() {}

public:
	/** Paints every visible child on the same layer, in slot order. */
	virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;

protected:
	int32 PaintArrangedChildren(const FPaintArgs& Args, const FArrangedChildren& ArrangedChildren, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const;

protected:
	SPanel() {}

public:
	virtual void SetVisibility(TAttribute<EVisibility> InVisibility) override final;
};
