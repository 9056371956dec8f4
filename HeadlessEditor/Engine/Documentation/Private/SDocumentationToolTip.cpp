#include "SDocumentationToolTip.h"

#include "Widgets/Text/STextBlock.h"

void SDocumentationToolTip::Construct(const FArguments& InArgs)
{
	TextContent = InArgs._Text;
	DocumentationLink = InArgs._DocumentationLink;
	ExcerptName = InArgs._ExcerptName;

	if (InArgs._Content.Widget != SNullWidget::NullWidget)
	{
		ChildSlot[InArgs._Content.Widget];
	}
	else
	{
		ChildSlot[SNew(STextBlock).Text(TextContent).AutoWrapText(true)];
	}
}

bool SDocumentationToolTip::IsInteractive() const
{
	// No documentation pages are installed, so the tooltip never offers its expanded form.
	return false;
}
