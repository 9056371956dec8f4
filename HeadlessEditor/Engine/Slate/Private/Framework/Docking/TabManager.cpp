#include "Framework/Docking/TabManager.h"

#include "Framework/Docking/DockingState.h"

FDockingState& FDockingState::Get()
{
	static FDockingState State;
	return State;
}

void FDockingState::RemoveLiveTab(const SDockTab& Tab)
{
	LiveTabs.RemoveAll([&Tab](const FLiveTab& LiveTab)
		{ return &LiveTab.Tab.Get() == &Tab; });
}

FTabManager::FTabManager(const TSharedPtr<SDockTab>& InOwnerTab, const TSharedRef<FTabManager::FTabSpawner>& InNomadTabSpawner)
	: NomadTabSpawner(InNomadTabSpawner)
	, OwnerTabPtr(InOwnerTab)
{
}

FTabManager::~FTabManager()
{
	FDockingState::Get().LiveTabs.RemoveAll([this](const FDockingState::FLiveTab& LiveTab)
		{ return LiveTab.Manager == this; });
}

FTabSpawnerEntry& FTabManager::RegisterTabSpawner(const FName TabId, const FOnSpawnTab& OnSpawnTab, const FCanSpawnTab& CanSpawnTab)
{
	ensureMsgf(!TabSpawner.Contains(TabId), TEXT("A tab spawner is already registered under this id"));
	TSharedRef<FTabSpawnerEntry> NewSpawnerEntry = MakeShared<FTabSpawnerEntry>(TabId, OnSpawnTab, CanSpawnTab);
	TabSpawner.Add(TabId, NewSpawnerEntry);
	return NewSpawnerEntry.Get();
}

bool FTabManager::UnregisterTabSpawner(const FName TabId)
{
	return TabSpawner.Remove(TabId) > 0;
}

bool FTabManager::HasTabSpawner(FName TabId) const
{
	return FindTabSpawnerFor(TabId).IsValid();
}

TSharedPtr<FTabSpawnerEntry> FTabManager::FindTabSpawnerFor(FName TabId)
{
	if (const TSharedRef<FTabSpawnerEntry>* Nomad = NomadTabSpawner->Find(TabId))
	{
		return *Nomad;
	}
	const TSharedRef<FTabSpawnerEntry>* Spawner = TabSpawner.Find(TabId);
	return Spawner ? TSharedPtr<FTabSpawnerEntry>(*Spawner) : TSharedPtr<FTabSpawnerEntry>();
}

const TSharedPtr<const FTabSpawnerEntry> FTabManager::FindTabSpawnerFor(FName TabId) const
{
	return const_cast<FTabManager*>(this)->FindTabSpawnerFor(TabId);
}

TSharedPtr<SDockTab> FTabManager::TryInvokeTab(const FTabId& TabId, bool bInvokeAsInactive)
{
	if (const TSharedPtr<SDockTab> ExistingTab = FindExistingLiveTab(TabId))
	{
		if (!bInvokeAsInactive)
		{
			DrawAttention(ExistingTab.ToSharedRef());
		}
		return ExistingTab;
	}
	return SpawnTab(TabId, TSharedPtr<SWindow>(), true);
}

TSharedPtr<SDockTab> FTabManager::SpawnTab(const FTabId& TabId, const TSharedPtr<SWindow>& ParentWindow, const bool bCanOutputBeNullptr)
{
	const TSharedPtr<FTabSpawnerEntry> Spawner = FindTabSpawnerFor(TabId.TabType);
	if (!Spawner.IsValid())
	{
		return nullptr;
	}
	const FSpawnTabArgs Args(ParentWindow, TabId);
	if (Spawner->CanSpawnTab.IsBound() && !Spawner->CanSpawnTab.Execute(Args))
	{
		return nullptr;
	}
	const TSharedRef<SDockTab> NewTab = Spawner->OnSpawnTab.Execute(Args);
	NewTab->SetTabManager(AsShared());
	Spawner->SpawnedTabPtr = NewTab;
	FDockingState::Get().LiveTabs.Add({this, TabId, NewTab});
	return NewTab;
}

TSharedPtr<SDockTab> FTabManager::FindExistingLiveTab(const FTabId& TabId) const
{
	for (const FDockingState::FLiveTab& LiveTab : FDockingState::Get().LiveTabs)
	{
		if (LiveTab.Manager == this && LiveTab.TabId == TabId)
		{
			return LiveTab.Tab;
		}
	}
	return nullptr;
}

void FTabManager::DrawAttention(const TSharedRef<SDockTab>& TabToHighlight)
{
	TabToHighlight->FlashTab();
}

FGlobalTabmanager::FGlobalTabmanager()
	: FTabManager(TSharedPtr<SDockTab>(), MakeShared<FTabSpawner>())
{
}

const TSharedRef<FGlobalTabmanager>& FGlobalTabmanager::Get()
{
	static const TSharedRef<FGlobalTabmanager> Instance = FGlobalTabmanager::New();
	return Instance;
}

FTabSpawnerEntry& FGlobalTabmanager::RegisterNomadTabSpawner(const FName TabId, const FOnSpawnTab& OnSpawnTab, const FCanSpawnTab& CanSpawnTab)
{
	// Registering an id again replaces the old spawner without complaint, as the engine does.
	NomadTabSpawner->Remove(TabId);
	TSharedRef<FTabSpawnerEntry> NewSpawnerEntry = MakeShared<FTabSpawnerEntry>(TabId, OnSpawnTab, CanSpawnTab);
	NomadTabSpawner->Add(TabId, NewSpawnerEntry);
	return NewSpawnerEntry.Get();
}

void FGlobalTabmanager::UnregisterNomadTabSpawner(const FName TabId)
{
	NomadTabSpawner->Remove(TabId);
}
