#pragma once

#include "CoreMinimal.h"

/**
 * Headless editor only; the engine has no such entry points. The editor application creates its
 * engine at start-up and tears it down at exit; tests do both once per session through these.
 */
namespace UE::Headless
{
	/** Creates GEditor (a UUnrealEdEngine, also GUnrealEd and GEngine) with a fresh, empty editor world. */
	UNREALED_API void CreateEditorEngine();
	/** Ends any play session, destroys the editor world, the engine and every object created since, and clears the globals. */
	UNREALED_API void DestroyEditorEngine();
}
