#pragma once

#include "CoreMinimal.h"

/** What the runtime's telemetry was told; the headless runtime counts instead of sending. */
namespace UE::Headless
{
	/** How often KyroTelemetry::WizardEditorOpened was called in this process. */
	CASTELLAN_API int32 GetWizardEditorOpenedCount();
}
