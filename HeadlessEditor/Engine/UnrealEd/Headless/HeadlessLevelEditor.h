#pragma once

#include "CoreMinimal.h"

class AActor;
class FViewport;

/**
 * Headless editor only. The level editor module owns the viewports and the floating details
 * panels in the engine; the headless editor keeps that state here so tests can set and read it.
 */
namespace UE::Headless
{
	/** Makes Viewport the one GEditor->GetActiveViewport() returns; null means no viewport is active. */
	UNREALED_API void SetActiveViewport(FViewport* Viewport);
	/** How often GEditor->RedrawAllViewports was called since the editor started. */
	UNREALED_API int32 GetRedrawAllViewportsCount();
	/** The actors the floating property windows last showed (destroyed ones left out). */
	UNREALED_API TArray<AActor*> GetFloatingPropertyWindowsActors();
	/** How often the floating property windows were updated since the editor started. */
	UNREALED_API int32 GetFloatingPropertyWindowsUpdateCount();
	/** Forgets everything above, as a fresh editor starts. */
	UNREALED_API void ResetLevelEditor();
}
