#include "Widgets/Layout/SBorder.h"

SBorder::SBorder()
	: BorderImage(nullptr)
	, BorderBackgroundColor(FLinearColor::White)
{
}

void SBorder::Construct(const FArguments& InArgs)
{
	BorderImage = InArgs._BorderImage;
	BorderBackgroundColor = InArgs._BorderBackgroundColor;
	SetColorAndOpacity(InArgs._ColorAndOpacity);
	SetForegroundColor(InArgs._ForegroundColor);

	ChildSlot
		.HAlign(InArgs._HAlign)
		.VAlign(InArgs._VAlign)
		.Padding(InArgs._Padding)
			[InArgs._Content.Widget];
}

void SBorder::SetContent(TSharedRef<SWidget> InContent)
{
	ChildSlot[InContent];
}

const TSharedRef<SWidget>& SBorder::GetContent() const
{
	return ChildSlot.GetWidget();
}

void SBorder::ClearContent()
{
	ChildSlot.DetachWidget();
}
