#include "Framework/Docking/TabManager.h"

FTabSpawnerEntry::FTabSpawnerEntry(const FName& InTabType, const FOnSpawnTab& InSpawnTabMethod, const FCanSpawnTab& InCanSpawnTab)
	: FWorkspaceItem(InTabType, FText::GetEmpty(), FSlateIcon(), false)
	, TabType(InTabType)
	, OnSpawnTab(InSpawnTabMethod)
	, CanSpawnTab(InCanSpawnTab)
	, MenuType(ETabSpawnerMenuType::Enabled)
	, bAutoGenerateMenuEntry(true)
{
}

FTabSpawnerEntry& FTabSpawnerEntry::SetIcon(const FSlateIcon& InIcon)
{
	Icon = InIcon;
	return *this;
}

FTabSpawnerEntry& FTabSpawnerEntry::SetDisplayNameAttribute(const TAttribute<FText>& InLegibleName)
{
	DisplayNameAttribute = InLegibleName;
	return *this;
}

FTabSpawnerEntry& FTabSpawnerEntry::SetDisplayName(const FText& InLegibleName)
{
	DisplayNameAttribute = InLegibleName;
	return *this;
}

FTabSpawnerEntry& FTabSpawnerEntry::SetTooltipTextAttribute(const TAttribute<FText>& InTooltipText)
{
	TooltipTextAttribute = InTooltipText;
	return *this;
}

FTabSpawnerEntry& FTabSpawnerEntry::SetTooltipText(const FText& InTooltipText)
{
	TooltipTextAttribute = InTooltipText;
	return *this;
}

FTabSpawnerEntry& FTabSpawnerEntry::SetGroup(const TSharedRef<FWorkspaceItem>& InGroup)
{
	if (const TSharedPtr<FWorkspaceItem> OldGroup = GetParent())
	{
		OldGroup->RemoveItem(AsShared());
	}
	InGroup->AddItem(AsShared());
	return *this;
}

FTabSpawnerEntry& FTabSpawnerEntry::SetMenuType(const TAttribute<ETabSpawnerMenuType::Type>& InMenuType)
{
	MenuType = InMenuType;
	return *this;
}

FTabSpawnerEntry& FTabSpawnerEntry::SetAutoGenerateMenuEntry(bool bInAutoGenerateMenuEntry)
{
	bAutoGenerateMenuEntry = bInAutoGenerateMenuEntry;
	return *this;
}

TSharedPtr<FTabSpawnerEntry> FTabSpawnerEntry::AsSpawnerEntry()
{
	return StaticCastSharedRef<FTabSpawnerEntry>(AsShared());
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

TSharedPtr<FTabSpawnerEntry> FTabManager::FindTabSpawnerFor(FName TabId) const
{
	const TSharedRef<FTabSpawnerEntry>* Spawner = TabSpawner.Find(TabId);
	return Spawner ? TSharedPtr<FTabSpawnerEntry>(*Spawner) : TSharedPtr<FTabSpawnerEntry>();
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

	const TSharedPtr<FTabSpawnerEntry> Spawner = FindTabSpawnerFor(TabId.TabType);
	if (!Spawner.IsValid())
	{
		return nullptr;
	}
	return SpawnTab(TabId, Spawner.ToSharedRef());
}

TSharedPtr<SDockTab> FTabManager::SpawnTab(const FTabId& TabId, const TSharedRef<FTabSpawnerEntry>& Spawner)
{
	const FSpawnTabArgs Args(TSharedPtr<SWindow>(), TabId);
	if (Spawner->CanSpawnTab.IsBound() && !Spawner->CanSpawnTab.Execute(Args))
	{
		return nullptr;
	}
	const TSharedRef<SDockTab> NewTab = Spawner->OnSpawnTab.Execute(Args);
	NewTab->SetTabManager(AsShared());
	Spawner->SpawnedTabPtr = NewTab;
	LiveTabs.Add(TPair<FTabId, TSharedRef<SDockTab>>(TabId, NewTab));
	return NewTab;
}

TSharedPtr<SDockTab> FTabManager::FindExistingLiveTab(const FTabId& TabId) const
{
	for (const TPair<FTabId, TSharedRef<SDockTab>>& LiveTab : LiveTabs)
	{
		if (LiveTab.Key == TabId)
		{
			return LiveTab.Value;
		}
	}
	return nullptr;
}

void FTabManager::DrawAttention(const TSharedRef<SDockTab>& TabToHighlight)
{
	TabToHighlight->FlashTab();
}

void FTabManager::OnTabClosing(const TSharedRef<SDockTab>& TabBeingClosed)
{
	for (int32 Index = 0; Index < LiveTabs.Num(); ++Index)
	{
		if (LiveTabs[Index].Value == TabBeingClosed)
		{
			LiveTabs.RemoveAt(Index);
			return;
		}
	}
}

const TSharedRef<FGlobalTabmanager>& FGlobalTabmanager::Get()
{
	static const TSharedRef<FGlobalTabmanager> Instance(new FGlobalTabmanager());
	return Instance;
}

FTabSpawnerEntry& FGlobalTabmanager::RegisterNomadTabSpawner(const FName TabId, const FOnSpawnTab& OnSpawnTab, const FCanSpawnTab& CanSpawnTab)
{
	// Registering an id again replaces the old spawner without complaint, as the engine does.
	NomadTabSpawner.Remove(TabId);
	TSharedRef<FTabSpawnerEntry> NewSpawnerEntry = MakeShared<FTabSpawnerEntry>(TabId, OnSpawnTab, CanSpawnTab);
	NomadTabSpawner.Add(TabId, NewSpawnerEntry);
	return NewSpawnerEntry.Get();
}

void FGlobalTabmanager::UnregisterNomadTabSpawner(const FName TabId)
{
	NomadTabSpawner.Remove(TabId);
}

TSharedPtr<FTabSpawnerEntry> FGlobalTabmanager::FindTabSpawnerFor(FName TabId) const
{
	if (const TSharedRef<FTabSpawnerEntry>* Nomad = NomadTabSpawner.Find(TabId))
	{
		return *Nomad;
	}
	return FTabManager::FindTabSpawnerFor(TabId);
}

void FGlobalTabmanager::ResetForHeadlessSession()
{
	LiveTabs.Empty();
	TabSpawner.Empty();
	NomadTabSpawner.Empty();
}
