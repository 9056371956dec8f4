#include "Widgets/SNullWidget.h"

#include "Widgets/SLeafWidget.h"

namespace
{
	/** The widget behind SNullWidget: shows nothing and takes no space. */
	class SNullWidgetContent : public SLeafWidget
	{
	public:
		SNullWidgetContent()
		{
			SetDebugInfo("SNullWidget", __FILE__, __LINE__, sizeof(SNullWidgetContent));
			SetVisibility(EVisibility::SelfHitTestInvisible);
		}

	private:
		virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override { return LayerId; }
		virtual FVector2D ComputeDesiredSize(float) const override { return FVector2D::ZeroVector; }
	};
}

TSharedRef<SWidget> SNullWidget::NullWidget = TSharedRef<SWidget>(MakeShareable(new SNullWidgetContent()));
