#include "Widgets/SToolTip.h"

#include "Widgets/Text/STextBlock.h"

void SToolTip::Construct(const FArguments& InArgs)
{
	TextContent = InArgs._Text;
	bIsInteractive = InArgs._IsInteractive;
	bHasCustomContent = InArgs._Content.Widget != SNullWidget::NullWidget;

	if (bHasCustomContent)
	{
		ChildSlot[InArgs._Content.Widget];
	}
	else
	{
		ChildSlot
			.Padding(InArgs._TextMargin)
				[SNew(STextBlock)
						.Text(TextContent)
						.Font(InArgs._Font)
						.AutoWrapText(true)];
	}
}

bool SToolTip::IsEmpty() const
{
	return !bHasCustomContent && TextContent.Get(FText::GetEmpty()).IsEmpty();
}
