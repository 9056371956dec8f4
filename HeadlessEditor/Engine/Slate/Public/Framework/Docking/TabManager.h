#pragma once

#include "CoreMinimal.h"
#include "Framework/Docking/WorkspaceItem.h"
#include "Textures/SlateIcon.h"
#include "Widgets/Docking/SDockTab.h"

class SWindow;

enum class ETabIdFlags : uint8
{
	None = 0x0,
	SaveLayout = 0x1,
};

/** Identifies a tab: its type and, for tabs that may be open several times, an instance. */
struct SLATE_API FTabId
{
	FTabId()
		: InstanceId(INDEX_NONE)
	{
	}
	FTabId(const FName InTabType, const int32 InInstanceId)
		: TabType(InTabType)
		, InstanceId(InInstanceId)
	{
	}
	FTabId(const FName InTabType)
		: TabType(InTabType)
		, InstanceId(INDEX_NONE)
	{
	}
	FTabId(const FName InTabType, const ETabIdFlags InFlags)
		: TabType(InTabType)
		, InstanceId(INDEX_NONE)
		, Flags(InFlags)
	{
	}

	bool operator==(const FTabId& Other) const { return TabType == Other.TabType && (InstanceId == INDEX_NONE || Other.InstanceId == INDEX_NONE || InstanceId == Other.InstanceId); }
	FString ToString() const { return InstanceId == INDEX_NONE ? TabType.ToString() : FString::Printf(TEXT("%s : %d"), *TabType.ToString(), InstanceId); }

	FName TabType;
	int32 InstanceId;
	ETabIdFlags Flags = ETabIdFlags::SaveLayout;
};

/** What a spawner is told about the tab it is asked to make. */
class SLATE_API FSpawnTabArgs
{
public:
	FSpawnTabArgs(const TSharedPtr<SWindow>& InOwnerWindow, const FTabId& InTabBeingSpawenedId)
		: TabIdBeingSpawned(InTabBeingSpawenedId)
		, OwnerWindow(InOwnerWindow)
	{
	}

	const TSharedPtr<SWindow>& GetOwnerWindow() const { return OwnerWindow; }
	const FTabId& GetTabId() const { return TabIdBeingSpawned; }

private:
	FTabId TabIdBeingSpawned;
	TSharedPtr<SWindow> OwnerWindow;
};

/** Makes the tab for a tab id. */
DECLARE_DELEGATE_RetVal_OneParam(TSharedRef<SDockTab>, FOnSpawnTab, const FSpawnTabArgs&);

/** Whether the tab may be made now. */
DECLARE_DELEGATE_RetVal_OneParam(bool, FCanSpawnTab, const FSpawnTabArgs&);

/** Whether and how a spawner appears in the Window menu. */
namespace ETabSpawnerMenuType
{
	enum Type : int
	{
		Enabled,
		Disabled,
		Hidden,
	};
}

/** A registered tab spawner, with what the Window menu shows for it. */
struct SLATE_API FTabSpawnerEntry : public FWorkspaceItem
{
	FTabSpawnerEntry(const FName& InTabType, const FOnSpawnTab& InSpawnTabMethod, const FCanSpawnTab& InCanSpawnTab);

	FTabSpawnerEntry& SetIcon(const FSlateIcon& InIcon);
	FTabSpawnerEntry& SetDisplayNameAttribute(const TAttribute<FText>& InLegibleName);
	FTabSpawnerEntry& SetDisplayName(const FText& InLegibleName);
	FTabSpawnerEntry& SetTooltipTextAttribute(const TAttribute<FText>& InTooltipText);
	FTabSpawnerEntry& SetTooltipText(const FText& InTooltipText);
	/** Puts the spawner in a group of the Window menu. */
	FTabSpawnerEntry& SetGroup(const TSharedRef<FWorkspaceItem>& InGroup);
	FTabSpawnerEntry& SetMenuType(const TAttribute<ETabSpawnerMenuType::Type>& InMenuType);
	FTabSpawnerEntry& SetAutoGenerateMenuEntry(bool bInAutoGenerateMenuEntry);

	virtual TSharedPtr<FTabSpawnerEntry> AsSpawnerEntry() override;

	const FName GetTabType() const { return TabType; }
	const TAttribute<ETabSpawnerMenuType::Type>& GetMenuType() const { return MenuType; }
	bool GetAutoGenerateMenuEntry() const { return bAutoGenerateMenuEntry; }

private:
	friend class FTabManager;
	friend class FGlobalTabmanager;

	FName TabType;
	FOnSpawnTab OnSpawnTab;
	FCanSpawnTab CanSpawnTab;
	TAttribute<ETabSpawnerMenuType::Type> MenuType;
	bool bAutoGenerateMenuEntry;
	/** The tab this spawner made while it is open, for invoking it again. */
	TWeakPtr<SDockTab> SpawnedTabPtr;
};

/** Owns tab spawners and the tabs they made, and opens tabs by id. */
class SLATE_API FTabManager : public TSharedFromThis<FTabManager>
{
public:
	virtual ~FTabManager() = default;

	FTabSpawnerEntry& RegisterTabSpawner(const FName TabId, const FOnSpawnTab& OnSpawnTab, const FCanSpawnTab& CanSpawnTab = FCanSpawnTab());
	bool UnregisterTabSpawner(const FName TabId);
	bool HasTabSpawner(FName TabId) const;

	/** Opens the tab, or brings the open one forward; @return the tab, or nullptr if it cannot be made. */
	virtual TSharedPtr<SDockTab> TryInvokeTab(const FTabId& TabId, bool bInvokeAsInactive = false);

	/** @return the open tab with this id, if any */
	TSharedPtr<SDockTab> FindExistingLiveTab(const FTabId& TabId) const;

	virtual void DrawAttention(const TSharedRef<SDockTab>& TabToHighlight);

	/** Called by a tab that is closing. */
	void OnTabClosing(const TSharedRef<SDockTab>& TabBeingClosed);

protected:
	FTabManager() = default;

	virtual TSharedPtr<FTabSpawnerEntry> FindTabSpawnerFor(FName TabId) const;
	TSharedPtr<SDockTab> SpawnTab(const FTabId& TabId, const TSharedRef<FTabSpawnerEntry>& Spawner);

	TMap<FName, TSharedRef<FTabSpawnerEntry>> TabSpawner;
	/** Open tabs, which the docking area would own. */
	TArray<TPair<FTabId, TSharedRef<SDockTab>>> LiveTabs;
};

/** The application's tab manager: it holds the nomad tab spawners, which any window may open. */
class SLATE_API FGlobalTabmanager : public FTabManager
{
public:
	static const TSharedRef<FGlobalTabmanager>& Get();

	/** Registers a nomad tab spawner; one already registered under that id is replaced. */
	FTabSpawnerEntry& RegisterNomadTabSpawner(const FName TabId, const FOnSpawnTab& OnSpawnTab, const FCanSpawnTab& CanSpawnTab = FCanSpawnTab());
	void UnregisterNomadTabSpawner(const FName TabId);

	/** Headless only: closes every open tab and forgets every spawner, between test sessions. */
	void ResetForHeadlessSession();

protected:
	virtual TSharedPtr<FTabSpawnerEntry> FindTabSpawnerFor(FName TabId) const override;

private:
	/** The headless test driver reads registered spawners, which the engine shows only in its menus. */
	friend class FWidgetDriver;

	TMap<FName, TSharedRef<FTabSpawnerEntry>> NomadTabSpawner;
};
