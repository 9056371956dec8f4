#pragma once

#include "CoreMinimal.h"

/** What tests set and read on the stand-ins of the plugin's runtime modules. */
namespace HeadlessRuntime
{
	/** How often the runtime was told that the Livestream Wizard opened. */
	HEADLESSTESTING_API int32 GetWizardEditorOpenedCount();
}
