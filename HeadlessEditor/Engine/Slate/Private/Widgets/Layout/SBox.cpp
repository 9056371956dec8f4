#include "Widgets/Layout/SBox.h"

SBox::SBox()
	: ChildSlot(this)
{
}

void SBox::Construct(const FArguments& InArgs)
{
	WidthOverride = InArgs._WidthOverride;
	HeightOverride = InArgs._HeightOverride;
	MinDesiredWidth = InArgs._MinDesiredWidth;
	MinDesiredHeight = InArgs._MinDesiredHeight;
	MaxDesiredWidth = InArgs._MaxDesiredWidth;
	MaxDesiredHeight = InArgs._MaxDesiredHeight;
	MinAspectRatio = InArgs._MinAspectRatio;
	MaxAspectRatio = InArgs._MaxAspectRatio;

	ChildSlot
		.HAlign(InArgs._HAlign)
		.VAlign(InArgs._VAlign)
		.Padding(InArgs._Padding)
			[InArgs._Content.Widget];
}
