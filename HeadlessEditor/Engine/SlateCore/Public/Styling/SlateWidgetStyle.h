#pragma once

#include "CoreMinimal.h"

struct FSlateBrush;

/** The base of the style structs widgets take (text, button, check box...). */
struct SLATECORE_API FSlateWidgetStyle
{
	FSlateWidgetStyle() = default;
	virtual ~FSlateWidgetStyle() = default;

	/** Adds the brushes the style draws with. */
	virtual void GetResources(TArray<const FSlateBrush*>& OutBrushes) const {}

	/** The name of this style's type, used to look it up in a style set. */
	virtual const FName GetTypeName() const = 0;
};
