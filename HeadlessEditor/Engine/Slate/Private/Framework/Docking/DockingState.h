#pragma once

#include "CoreMinimal.h"
#include "Framework/Docking/TabManager.h"

/**
 * The tabs the docking areas hold open, and the tabs that asked for attention. The engine keeps them
 * in its docking widgets; the headless editor keeps them here, where the instruments read them too.
 */
struct FDockingState
{
	struct FLiveTab
	{
		const FTabManager* Manager;
		FTabId TabId;
		TSharedRef<SDockTab> Tab;
	};

	TArray<FLiveTab> LiveTabs;
	TArray<TPair<const SDockTab*, int32>> AttentionRequests;

	static FDockingState& Get();

	/** Forgets a tab that closed. */
	void RemoveLiveTab(const SDockTab& Tab);
};
