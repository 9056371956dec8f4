#include "Styling/WidgetStyle.h"

#include "Styling/SlateColor.h"

const float FWidgetStyle::SubdueAmount = 0.6f;

FWidgetStyle& FWidgetStyle::SetForegroundColor(const TAttribute<FSlateColor>& InForeground)
{
	const FLinearColor NewForeground = InForeground.Get().GetColor(*this);
	return SetForegroundColor(NewForeground);
}
