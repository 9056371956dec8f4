#include "Widgets/Notifications/SNotificationBackground.h"

#include "Layout/Clipping.h"
#include "Rendering/DrawElements.h"
#include "Styling/AppStyle.h"
#include "Styling/StyleColors.h"
#include "Styling/StyleDefaults.h"
#include "Styling/WidgetStyle.h"

#include <algorithm>

void SNotificationBackground::Construct(const FArguments& InArgs)
{
	WatermarkBrush = FAppStyle::Get().GetBrush("NotificationList.Watermark");
	BorderBrush = FAppStyle::Get().GetBrush("NotificationList.ItemBackground_Border");
	SetClipping(EWidgetClipping::ClipToBounds);
	WatermarkTint = FStyleColors::Notifications.GetSpecifiedColor() * FLinearColor(1.15f, 1.15f, 1.15f, 1.0f);

	SBorder::Construct(SBorder::FArguments()
						   .BorderImage(FStyleDefaults::GetNoBrush())
						   .Padding(InArgs._Padding)
						   .BorderBackgroundColor(InArgs._BorderBackgroundColor)
						   .ColorAndOpacity(InArgs._ColorAndOpacity)
						   .DesiredSizeScale(InArgs._DesiredSizeScale)[InArgs._Content.Widget]);
}

int32 SNotificationBackground::OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	if (WatermarkBrush && WatermarkBrush->DrawAs != ESlateBrushDrawType::NoDrawType)
	{
		// The watermark is two and a half times the card's height, within bounds, and cut off by the card's edge.
		const float WatermarkSize = std::clamp(static_cast<float>(AllottedGeometry.GetLocalSize().Y) * 2.5f, 130.0f, 220.0f);
		FSlateDrawElement::MakeBox(OutDrawElements, LayerId, AllottedGeometry.ToPaintGeometry(), BorderBrush, ESlateDrawEffect::None, BorderBrush->GetTint(InWidgetStyle) * InWidgetStyle.GetColorAndOpacityTint());
		OutDrawElements.PushClip(FSlateClippingZone(MyCullingRect.InsetBy(FMargin(2.0f))));
		FSlateDrawElement::MakeBox(OutDrawElements, LayerId + 1, AllottedGeometry.ToPaintGeometry(FVector2D(4.0, 4.0), FVector2D(WatermarkSize, WatermarkSize)), WatermarkBrush, ESlateDrawEffect::None, WatermarkTint * InWidgetStyle.GetColorAndOpacityTint() * GetBorderBackgroundColor().GetColor(InWidgetStyle));
		OutDrawElements.PopClip();
	}
	return SBorder::OnPaint(Args, AllottedGeometry, MyCullingRect, OutDrawElements, LayerId + 2, InWidgetStyle, bParentEnabled);
}
