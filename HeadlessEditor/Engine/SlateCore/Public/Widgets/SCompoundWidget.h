#pragma once

#include "CoreMinimal.h"
#include "Layout/Children.h"
#include "Misc/Attribute.h"
#include "Styling/SlateColor.h"
#include "Widgets/SWidget.h"

class FArrangedChildren;

/** A widget made of one child, which is usually a tree of other widgets built in Construct. */
class SLATECORE_API SCompoundWidget : public SWidget
{
public:
	/** How much the content is scaled along each axis. */
	const FVector2D GetContentScale() const { return ContentScaleAttribute.Get(); }
	void SetContentScale(TAttribute<FVector2D> InContentScale) { ContentScaleAttribute = MoveTemp(InContentScale); }

	/** The tint applied to the widget and its content. */
	FLinearColor GetColorAndOpacity() const { return ColorAndOpacityAttribute.Get(); }
	void SetColorAndOpacity(TAttribute<FLinearColor> InColorAndOpacity) { ColorAndOpacityAttribute = MoveTemp(InColorAndOpacity); }

	/** The foreground colour the content inherits. */
	void SetForegroundColor(TAttribute<FSlateColor> InForegroundColor) { ForegroundColorAttribute = MoveTemp(InForegroundColor); }

public:
	virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;
	virtual FChildren* GetChildren() override;
	virtual void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;
	virtual FSlateColor GetForegroundColor() const override;

public:
	virtual void SetVisibility(TAttribute<EVisibility> InVisibility) override final;

protected:
	/** The child's desired size plus the slot's padding; nothing when the child is collapsed. */
	virtual FVector2D ComputeDesiredSize(float) const override;

protected:
	SCompoundWidget();

	/** The child slot of a compound widget. */
	struct FCompoundWidgetOneChildSlot : ::TSingleWidgetChildrenWithBasicLayoutSlot<EInvalidateWidgetReason::None>
	{
		friend SCompoundWidget;
		using ::TSingleWidgetChildrenWithBasicLayoutSlot<EInvalidateWidgetReason::None>::TSingleWidgetChildrenWithBasicLayoutSlot;
	};

	/** The slot that contains this widget's descendants. */
	FCompoundWidgetOneChildSlot ChildSlot;

private:
	TAttribute<FVector2D> ContentScaleAttribute;
	TAttribute<FLinearColor> ColorAndOpacityAttribute;
	TAttribute<FSlateColor> ForegroundColorAttribute;
};
