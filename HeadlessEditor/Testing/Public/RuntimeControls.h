#pragma once

#include "CoreMinimal.h"
#include "HeadlessTelemetry.h"

/** What tests set and read on the stand-ins of the plugin's runtime modules. */
namespace HeadlessRuntime
{
	using UE::Headless::GetWizardEditorOpenedCount;
}
