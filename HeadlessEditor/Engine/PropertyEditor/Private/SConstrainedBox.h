#pragma once

#include "CoreMinimal.h"
#include "Misc/Attribute.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

/**
 * Asks for its content's width kept between a minimum and a maximum: a details row's value column
 * gives its content at least the width a customisation asked for, and no more than it allowed.
 */
class SConstrainedBox : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SConstrainedBox)
		: _MinWidth()
		, _MaxWidth()
		{
		}
		SLATE_DEFAULT_SLOT(FArguments, Content)
		SLATE_ATTRIBUTE(TOptional<float>, MinWidth)
		SLATE_ATTRIBUTE(TOptional<float>, MaxWidth)
		SLATE_END_ARGS()

		void Construct(const FArguments& InArgs);

		/** The content's width raised to the minimum, then lowered to the maximum when the maximum is the larger; the content's height. */
		virtual FVector2D ComputeDesiredSize(float LayoutScaleMultiplier) const override;

	private:
		TAttribute<TOptional<float>> MinWidth;
		TAttribute<TOptional<float>> MaxWidth;
};
