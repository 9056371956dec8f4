#pragma once

#include "CoreMinimal.h"

/** Headless editor only: what tests read about the placement mode module itself. */
namespace UE::Headless
{
	/** How many times the module has started in this process. */
	PLACEMENTMODE_API int32 GetPlacementModeStartupCount();
}
