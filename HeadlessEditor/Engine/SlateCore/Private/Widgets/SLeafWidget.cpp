#include "Widgets/SLeafWidget.h"

#include "Layout/Children.h"

void SLeafWidget::SetVisibility(TAttribute<EVisibility> InVisibility)
{
	SWidget::SetVisibility(MoveTemp(InVisibility));
}

FChildren* SLeafWidget::GetChildren()
{
	return &FNoChildren::NoChildrenInstance;
}

void SLeafWidget::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
}
