#pragma once

#include "CoreMinimal.h"

/** The runtime's view of the engine's "HardwareEncoders" plugin, as the instruments set it. */
namespace UE::Headless
{
	/** What FCastellanModule::SuggestLoadingHardwareEncodersPlugin answers from now on. */
	CASTELLAN_API void SetSuggestLoadingHardwareEncodersPlugin(bool bSuggest);

	/** Forgets that enabling the plugin awaits a restart, as a restarted editor would. */
	CASTELLAN_API void ClearHardwareEncodersPendingRestart();
}
