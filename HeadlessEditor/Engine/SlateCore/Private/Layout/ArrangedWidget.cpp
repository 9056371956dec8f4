#include "Layout/ArrangedWidget.h"

#include "Widgets/SNullWidget.h"
#include "Widgets/SWidget.h"

const FArrangedWidget& FArrangedWidget::GetNullWidget()
{
	static const FArrangedWidget NullArrangedWidget(SNullWidget::NullWidget, FGeometry());
	return NullArrangedWidget;
}

FString FArrangedWidget::ToString() const
{
	return FString::Printf(TEXT("%s @ %s"), *Widget->ToString(), *Geometry.ToString());
}
