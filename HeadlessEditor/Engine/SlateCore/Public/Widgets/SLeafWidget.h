#pragma once

#include "CoreMinimal.h"
#include "Widgets/SWidget.h"

/** A widget with no children, such as a text block or an image. */
class SLATECORE_API SLeafWidget : public SWidget
{
public:
	virtual FChildren* GetChildren() override final;
};
