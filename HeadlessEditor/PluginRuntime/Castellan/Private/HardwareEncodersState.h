#pragma once

#include "CoreMinimal.h"

/** The runtime's view of the "HardwareEncoders" plugin (read by tests through HeadlessEditor/Testing). */
struct FHardwareEncodersState
{
	/** What SuggestLoadingHardwareEncodersPlugin answers. */
	bool bSuggestLoading = true;
	/** Set once enabling the plugin awaits a restart; lasts for the process. */
	bool bPendingRestart = false;

	static CASTELLAN_API FHardwareEncodersState& Get();
};
