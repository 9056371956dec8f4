#pragma once

#include "CoreMinimal.h"
#include "Layout/Children.h"
#include "Styling/SlateColor.h"
#include "Widgets/SWidget.h"

/** The child slot of a compound widget. */
using FCompoundWidgetOneChildSlot = TSingleWidgetChildrenWithBasicLayoutSlot<EInvalidateWidgetReason::Layout>;

/** A widget made of one child, which is usually a tree of other widgets built in Construct. */
class SLATECORE_API SCompoundWidget : public SWidget
{
public:
	virtual FChildren* GetChildren() override;

	void SetForegroundColor(TAttribute<FSlateColor> InForegroundColor) { ForegroundColor = MoveTemp(InForegroundColor); }
	FSlateColor GetForegroundColor() const { return ForegroundColor.Get(); }
	void SetColorAndOpacity(TAttribute<FLinearColor> InColorAndOpacity) { ColorAndOpacity = MoveTemp(InColorAndOpacity); }
	FLinearColor GetColorAndOpacity() const { return ColorAndOpacity.Get(); }

	virtual void SetVisibility(TAttribute<EVisibility> InVisibility) override final;

protected:
	SCompoundWidget();

	/** The slot that contains this widget's descendants. */
	FCompoundWidgetOneChildSlot ChildSlot;

private:
	TAttribute<FLinearColor> ColorAndOpacity;
	TAttribute<FSlateColor> ForegroundColor;
};
