#include "Widgets/SLeafWidget.h"

#include "Layout/Children.h"

FChildren* SLeafWidget::GetChildren()
{
	return &FNoChildren::NoChildrenInstance;
}
