#include "Widgets/Text/STextBlock.h"

STextBlock::STextBlock()
	: TextStyle(FTextBlockStyle::GetDefault())
{
}

void STextBlock::Construct(const FArguments& InArgs)
{
	TextStyle = InArgs._TextStyle ? *InArgs._TextStyle : FTextBlockStyle::GetDefault();
	BoundText = InArgs._Text;
	Font = InArgs._Font;
	ColorAndOpacity = InArgs._ColorAndOpacity;
	Margin = InArgs._Margin;
	Justification = InArgs._Justification;
	AutoWrapText = InArgs._AutoWrapText;
	WrapTextAt = InArgs._WrapTextAt;
	MinDesiredWidth = InArgs._MinDesiredWidth;
}

FSlateColor STextBlock::GetColorAndOpacity() const
{
	return ColorAndOpacity.IsSet() ? ColorAndOpacity.Get() : TextStyle.ColorAndOpacity;
}

FSlateFontInfo STextBlock::GetFont() const
{
	return Font.IsSet() ? Font.Get() : TextStyle.Font;
}
