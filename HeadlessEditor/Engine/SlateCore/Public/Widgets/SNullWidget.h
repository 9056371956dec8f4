#pragma once

#include "CoreMinimal.h"

class SWidget;

/** The widget that stands for "no widget": empty slots hold it. */
class SLATECORE_API SNullWidget
{
public:
	static TSharedRef<SWidget> NullWidget;
};
