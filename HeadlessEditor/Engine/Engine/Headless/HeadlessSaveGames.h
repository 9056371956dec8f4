#pragma once

#include "CoreMinimal.h"

/**
 * Headless editor only: the platform save-game system keeps its slots in process memory, so a later
 * editor session in the same test process finds what an earlier one saved, as a disk would.
 */
namespace UE::Headless
{
	/** Deletes every save slot. */
	ENGINE_API void ClearSaveGames();
	/** Whether the platform offers a save-game system at all (it does by default). */
	ENGINE_API void SetSaveGameSystemAvailable(bool bAvailable);
	/** The stored record of a slot as text (the class path, then one "Property=Value" line each); empty if none. */
	ENGINE_API FString DescribeSaveGame(const FString& SlotName, int32 UserIndex);
}
