#pragma once

#include "CoreMinimal.h"
#include "Styling/SlateBrush.h"
#include "Styling/SlateColor.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SLeafWidget.h"

/** Draws a brush. */
class SLATECORE_API SImage : public SLeafWidget
{
public:
	SLATE_BEGIN_ARGS(SImage)
		: _Image(nullptr)
		, _ColorAndOpacity(FLinearColor::White)
		, _FlipForRightToLeftFlowDirection(false)
		{
		}
		/** Image resource */
		SLATE_ATTRIBUTE(const FSlateBrush*, Image)
		/** Color and opacity */
		SLATE_ATTRIBUTE(FSlateColor, ColorAndOpacity)
		/** When specified, ignore the brushes size and report the DesiredSizeOverride as the desired image size. */
		SLATE_ATTRIBUTE(TOptional<FVector2D>, DesiredSizeOverride)
		/** Flips the image if the localization's flow direction is RightToLeft */
		SLATE_ARGUMENT(bool, FlipForRightToLeftFlowDirection)
		SLATE_END_ARGS()

		SImage();
		void Construct(const FArguments& InArgs);

		void SetImage(TAttribute<const FSlateBrush*> InImage) { Image = MoveTemp(InImage); }
		void SetColorAndOpacity(TAttribute<FSlateColor> InColorAndOpacity) { ColorAndOpacity = MoveTemp(InColorAndOpacity); }
		void SetColorAndOpacity(FLinearColor InColorAndOpacity) { ColorAndOpacity = FSlateColor(InColorAndOpacity); }
		void SetDesiredSizeOverride(TAttribute<TOptional<FVector2D>> InDesiredSizeOverride) { DesiredSizeOverride = MoveTemp(InDesiredSizeOverride); }

		/** Draws the brush over the whole geometry, tinted by the image's colour and the brush's. */
		virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;

	protected:
		/** The brush's image size, or the override when one is set; nothing without a brush. */
		virtual FVector2D ComputeDesiredSize(float) const override;

	private:
		TAttribute<const FSlateBrush*> Image;
		TAttribute<FSlateColor> ColorAndOpacity;
		TAttribute<TOptional<FVector2D>> DesiredSizeOverride;
		bool bFlipForRightToLeftFlowDirection;
};
