#pragma once

#include "CoreMinimal.h"
#include "Layout/Geometry.h"

class SWidget;

/** A widget together with the geometry its parent gave it. */
class FArrangedWidget
{
public:
	FArrangedWidget(TSharedRef<SWidget> InWidget, const FGeometry& InGeometry)
		: Geometry(InGeometry)
		, Widget(InWidget)
	{
	}

	/** The null widget at an empty geometry. */
	SLATECORE_API static const FArrangedWidget& GetNullWidget();

	SWidget* GetWidgetPtr() const { return &Widget.Get(); }

	SLATECORE_API FString ToString() const;

	bool operator==(const FArrangedWidget& Other) const { return Widget == Other.Widget; }

	/** The widget's geometry */
	FGeometry Geometry;

	/** The widget that is being arranged */
	TSharedRef<SWidget> Widget;
};
