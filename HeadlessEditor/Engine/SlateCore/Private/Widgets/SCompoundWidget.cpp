#include "Widgets/SCompoundWidget.h"

SCompoundWidget::SCompoundWidget()
	: ChildSlot(this)
	, ColorAndOpacity(FLinearColor::White)
	, ForegroundColor(FSlateColor::UseForeground())
{
}

FChildren* SCompoundWidget::GetChildren()
{
	return &ChildSlot;
}

void SCompoundWidget::SetVisibility(TAttribute<EVisibility> InVisibility)
{
	SWidget::SetVisibility(MoveTemp(InVisibility));
}
