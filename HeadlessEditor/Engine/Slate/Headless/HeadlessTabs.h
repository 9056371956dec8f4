#pragma once

#include "CoreMinimal.h"

class SDockTab;
struct FTabSpawnerEntry;

/** Headless editor only: what the editor's Window menu and tab wells would show. */
namespace UE::Headless
{
	/** The nomad tab spawner registered under an id, as the Window menu lists it; null if none. */
	SLATE_API TSharedPtr<const FTabSpawnerEntry> FindNomadTabSpawner(FName TabId);
	/** How many times a tab was asked to draw attention (its tab well would flash it). */
	SLATE_API int32 GetAttentionRequests(const SDockTab& Tab);
	/** Closes every open tab and forgets every spawner of the global tab manager, as closing the editor does. */
	SLATE_API void ResetTabs();
}
