#include "Widgets/Images/SImage.h"

SImage::SImage()
	: bFlipForRightToLeftFlowDirection(false)
{
}

void SImage::Construct(const FArguments& InArgs)
{
	Image = InArgs._Image;
	ColorAndOpacity = InArgs._ColorAndOpacity;
	DesiredSizeOverride = InArgs._DesiredSizeOverride;
	bFlipForRightToLeftFlowDirection = InArgs._FlipForRightToLeftFlowDirection;
}
