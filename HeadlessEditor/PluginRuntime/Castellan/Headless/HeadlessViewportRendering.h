#pragma once

#include "CoreMinimal.h"

/** The runtime's viewport-rendering switches, set as a blueprint elsewhere in the game would set them. */
namespace UE::Headless
{
	CASTELLAN_API void SetEditorViewportRendering(bool bEnabled);
	CASTELLAN_API void SetRuntimeViewportRendering(bool bEnabled);
}
