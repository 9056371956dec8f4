#pragma once

#include "CoreMinimal.h"

/** The runtime's viewport-rendering switches, process-wide as the runtime keeps them. */
struct FKyroViewportRenderingState
{
	bool bEditorViewportRendering = true;
	bool bRuntimeViewportRendering = true;

	static CASTELLAN_API FKyroViewportRenderingState& Get();
};
