#pragma once

#include "CoreMinimal.h"
#include "Layout/Children.h"
#include "Widgets/SWidget.h"

/** A widget that lays out any number of children, each in a slot. */
class SLATECORE_API SPanel : public SWidget
{
protected:
	SPanel() = default;
};
