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
	};
}

TSharedRef<SWidget> SNullWidget::NullWidget = TSharedRef<SWidget>(MakeShareable(new SNullWidgetContent()));
