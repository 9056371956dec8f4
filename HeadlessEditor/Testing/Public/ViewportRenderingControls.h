#pragma once

#include "CoreMinimal.h"

/** What tests set on the runtime's viewport-rendering switches, as a blueprint elsewhere would. */
namespace HeadlessRuntime
{
	HEADLESSTESTING_API void SetEditorViewportRendering(bool bEnabled);
	HEADLESSTESTING_API void SetRuntimeViewportRendering(bool bEnabled);
}
