#pragma once

#include "CoreMinimal.h"
#include "Styling/CoreStyle.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/Layout/SBorder.h"

/** A line between groups of content: as long as it is allowed, as thick as asked. */
class SLATE_API SSeparator : public SBorder
{
public:
	SLATE_BEGIN_ARGS(SSeparator)
		: _SeparatorImage(FCoreStyle::Get().GetBrush("Separator"))
		, _Orientation(Orient_Horizontal)
		, _Thickness(3.0f)
		, _ColorAndOpacity(FLinearColor::White)
		{
		}
		SLATE_ARGUMENT(const FSlateBrush*, SeparatorImage)
		/** A horizontal separator is a line across, a vertical one a line down */
		SLATE_ARGUMENT(EOrientation, Orientation)
		SLATE_ARGUMENT(float, Thickness)
		SLATE_ATTRIBUTE(FSlateColor, ColorAndOpacity)
		SLATE_END_ARGS()

		void Construct(const FArguments& InArgs);

		virtual FVector2D ComputeDesiredSize(float) const override;

	private:
		EOrientation Orientation;
		float Thickness;
};
