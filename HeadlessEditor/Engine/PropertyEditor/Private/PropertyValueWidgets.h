#pragma once

#include "CoreMinimal.h"
#include "PropertyHandle.h"
#include "Widgets/SWidget.h"

/**
 * The widgets a details panel shows for a property's value when no customisation replaces them, one
 * kind per property type as the engine's property editors have them, with the widths they ask for.
 */
namespace PropertyValueWidgets
{
	struct FValueWidget
	{
		TSharedRef<SWidget> Widget;
		TOptional<float> MinDesiredWidth;
		TOptional<float> MaxDesiredWidth;
	};

	/** A check box for a bool, a combo for an enumeration or an object, a text box for numbers and strings, the element count of an array; nothing for a struct. */
	FValueWidget Make(const TSharedRef<IPropertyHandle>& Handle);
}
