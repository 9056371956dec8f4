#pragma once

#include "CoreMinimal.h"
#include "HeadlessViewportRendering.h"

/** What tests set on the runtime's viewport-rendering switches, as a blueprint elsewhere would. */
namespace HeadlessRuntime
{
	using UE::Headless::SetEditorViewportRendering;
	using UE::Headless::SetRuntimeViewportRendering;
}
