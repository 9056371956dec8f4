#pragma once

#include "CoreMinimal.h"

class UClass;

/** Headless editor only: worlds that fail as the engine's can. */
namespace UE::Headless
{
	/**
	 * Makes every world refuse to spawn actors of this class or of its subclasses: SpawnActor
	 * returns null, as the engine's does when a spawn fails. Null lets every class spawn again.
	 */
	ENGINE_API void SetRefusedSpawnClass(UClass* Class);
}
