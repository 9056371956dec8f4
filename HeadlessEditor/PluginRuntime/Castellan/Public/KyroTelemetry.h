#pragma once

#include "CoreMinimal.h"

/** Usage telemetry of the plugin. */
namespace KyroTelemetry
{
	/** Records that the Livestream Wizard was opened. */
	CASTELLAN_API void WizardEditorOpened();
}
