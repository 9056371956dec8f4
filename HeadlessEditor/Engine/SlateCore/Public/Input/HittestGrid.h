#pragma once

#include "CoreMinimal.h"

/**
 * The grid a window registers its hit-testable widgets in while it paints, to find the widget under
 * the cursor. The headless editor routes no mouse input, so the grid records nothing.
 */
class SLATECORE_API FHittestGrid
{
public:
	FHittestGrid();
};
