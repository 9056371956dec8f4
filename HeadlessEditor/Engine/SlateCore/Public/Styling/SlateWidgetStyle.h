#pragma once

#include "CoreMinimal.h"

/** The base of the style structs widgets take (text, button, check box...). */
struct SLATECORE_API FSlateWidgetStyle
{
	FSlateWidgetStyle() = default;
	virtual ~FSlateWidgetStyle() = default;

	/** The name of this style's type, used to look it up in a style set. */
	virtual const FName GetTypeName() const = 0;
};
