#include "HeadlessTabs.h"

#include "Framework/Docking/DockingState.h"
#include "Framework/Docking/TabManager.h"

namespace
{
	/** Reaches the tab manager's protected spawner maps, as a derived class may. */
	struct FTabManagerAccess : FTabManager
	{
		static FTabSpawner& GetNomadSpawners(FTabManager& Manager) { return *(Manager.*(&FTabManagerAccess::NomadTabSpawner)); }
		static FTabSpawner& GetSpawners(FTabManager& Manager) { return Manager.*(&FTabManagerAccess::TabSpawner); }
	};
}

TSharedPtr<const FTabSpawnerEntry> UE::Headless::FindNomadTabSpawner(FName TabId)
{
	const TSharedRef<FTabSpawnerEntry>* Entry = FTabManagerAccess::GetNomadSpawners(FGlobalTabmanager::Get().Get()).Find(TabId);
	return Entry ? TSharedPtr<const FTabSpawnerEntry>(*Entry) : TSharedPtr<const FTabSpawnerEntry>();
}

int32 UE::Headless::GetAttentionRequests(const SDockTab& Tab)
{
	for (const TPair<const SDockTab*, int32>& Request : FDockingState::Get().AttentionRequests)
	{
		if (Request.Key == &Tab)
		{
			return Request.Value;
		}
	}
	return 0;
}

void UE::Headless::ResetTabs()
{
	FDockingState::Get().LiveTabs.Empty();
	FTabManager& Manager = FGlobalTabmanager::Get().Get();
	FTabManagerAccess::GetNomadSpawners(Manager).Empty();
	FTabManagerAccess::GetSpawners(Manager).Empty();
}
