#pragma once

#include "CoreMinimal.h"
#include "Framework/Docking/WorkspaceItem.h"
#include "Misc/Attribute.h"
#include "Textures/SlateIcon.h"
#include "Widgets/Docking/SDockTab.h"

class SWindow;

enum class ETabIdFlags : uint8
{
	None = 0x0,
	SaveLayout = 0x1,
};

/** Identifies a tab: its type and, for tabs that may be open several times, an instance. */
struct FTabId
{
	FTabId()
		: InstanceId(INDEX_NONE)
		, Flags(ETabIdFlags::SaveLayout)
	{
	}
	FTabId(const FName InTabType, const int32 InInstanceId)
		: TabType(InTabType)
		, InstanceId(InInstanceId)
		, Flags(ETabIdFlags::SaveLayout)
	{
	}
	FTabId(const FName InTabType)
		: TabType(InTabType)
		, InstanceId(INDEX_NONE)
		, Flags(ETabIdFlags::SaveLayout)
	{
	}
	FTabId(const FName InTabType, const ETabIdFlags InFlags)
		: TabType(InTabType)
		, InstanceId(INDEX_NONE)
		, Flags(InFlags)
	{
	}

	bool IsTabPersistable() const { return InstanceId == INDEX_NONE; }
	/** An unset instance matches every instance of the type. */
	bool operator==(const FTabId& Other) const { return TabType == Other.TabType && (InstanceId == INDEX_NONE || Other.InstanceId == INDEX_NONE || InstanceId == Other.InstanceId); }
	FString ToString() const { return TabType.ToString(); }

	FName TabType;
	int32 InstanceId;

private:
	ETabIdFlags Flags;
};

/** What a spawner is told about the tab it is asked to make. */
class FSpawnTabArgs
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
struct FTabSpawnerEntry : public FWorkspaceItem
{
	FTabSpawnerEntry(const FName& InTabType, const FOnSpawnTab& InSpawnTabMethod, const FCanSpawnTab& InCanSpawnTab)
		: FWorkspaceItem(FText(), FSlateIcon(), false)
		, TabType(InTabType)
		, OnSpawnTab(InSpawnTabMethod)
		, CanSpawnTab(InCanSpawnTab)
		, MenuType(ETabSpawnerMenuType::Enabled)
		, bAutoGenerateMenuEntry(true)
	{
	}

	FTabSpawnerEntry& SetIcon(const FSlateIcon& InIcon)
	{
		Icon = InIcon;
		return *this;
	}
	FTabSpawnerEntry& SetDisplayNameAttribute(const TAttribute<FText>& InLegibleName)
	{
		DisplayNameAttribute = InLegibleName;
		return *this;
	}
	FTabSpawnerEntry& SetTooltipTextAttribute(const TAttribute<FText>& InTooltipText)
	{
		TooltipTextAttribute = InTooltipText;
		return *this;
	}
	FTabSpawnerEntry& SetDisplayName(const FText& InLegibleName)
	{
		DisplayNameAttribute = InLegibleName;
		return *this;
	}
	FTabSpawnerEntry& SetTooltipText(const FText& InTooltipText)
	{
		TooltipTextAttribute = InTooltipText;
		return *this;
	}
	/** Puts the spawner in a group of the Window menu. */
	FTabSpawnerEntry& SetGroup(const TSharedRef<FWorkspaceItem>& InGroup)
	{
		InGroup->AddItem(SharedThis(this));
		return *this;
	}
	FTabSpawnerEntry& SetMenuType(const TAttribute<ETabSpawnerMenuType::Type>& InMenuType)
	{
		MenuType = InMenuType;
		return *this;
	}
	FTabSpawnerEntry& SetAutoGenerateMenuEntry(bool bInAutoGenerateMenuEntry)
	{
		bAutoGenerateMenuEntry = bInAutoGenerateMenuEntry;
		return *this;
	}

	virtual TSharedPtr<FTabSpawnerEntry> AsSpawnerEntry() override { return SharedThis(this); }

	const FName GetTabType() const { return TabType; }

private:
	FName TabType;
	FOnSpawnTab OnSpawnTab;
	FCanSpawnTab CanSpawnTab;
	TAttribute<ETabSpawnerMenuType::Type> MenuType;
	bool bAutoGenerateMenuEntry;
	/** The tab this spawner made while it is open, for invoking it again. */
	TWeakPtr<SDockTab> SpawnedTabPtr;

	friend class FTabManager;
};

/** Owns tab spawners and the tabs they made, and opens tabs by id. */
class SLATE_API FTabManager : public TSharedFromThis<FTabManager>
{
	friend class FGlobalTabmanager;

public:
	virtual ~FTabManager();

	FTabSpawnerEntry& RegisterTabSpawner(const FName TabId, const FOnSpawnTab& OnSpawnTab, const FCanSpawnTab& CanSpawnTab = FCanSpawnTab());
	bool UnregisterTabSpawner(const FName TabId);

	virtual void DrawAttention(const TSharedRef<SDockTab>& TabToHighlight);

	/** Opens the tab, or brings the open one forward; @return the tab, or nullptr if it cannot be made. */
	virtual TSharedPtr<SDockTab> TryInvokeTab(const FTabId& TabId, bool bInvokeAsInactive = false);

	/** @return the open tab with this id, if any */
	TSharedPtr<SDockTab> FindExistingLiveTab(const FTabId& TabId) const;

	bool HasTabSpawner(FName TabId) const;

protected:
	typedef TMap<FName, TSharedRef<FTabSpawnerEntry>> FTabSpawner;

	FTabManager(const TSharedPtr<SDockTab>& InOwnerTab, const TSharedRef<FTabManager::FTabSpawner>& InNomadTabSpawner);

	TSharedPtr<SDockTab> SpawnTab(const FTabId& TabId, const TSharedPtr<SWindow>& ParentWindow, const bool bCanOutputBeNullptr = false);

	FTabSpawner TabSpawner;
	TSharedRef<FTabSpawner> NomadTabSpawner;

	/** Nomad spawners first, then this manager's own. */
	TSharedPtr<FTabSpawnerEntry> FindTabSpawnerFor(FName TabId);
	const TSharedPtr<const FTabSpawnerEntry> FindTabSpawnerFor(FName TabId) const;

	TWeakPtr<SDockTab> OwnerTabPtr;
};

/** The application's tab manager: it holds the nomad tab spawners, which any window may open. */
class SLATE_API FGlobalTabmanager : public FTabManager
{
public:
	static const TSharedRef<FGlobalTabmanager>& Get();

	/** Registers a nomad tab spawner; one already registered under that id is replaced. */
	FTabSpawnerEntry& RegisterNomadTabSpawner(const FName TabId, const FOnSpawnTab& OnSpawnTab, const FCanSpawnTab& CanSpawnTab = FCanSpawnTab());
	void UnregisterNomadTabSpawner(const FName TabId);

	static TSharedRef<FGlobalTabmanager> New() { return MakeShareable(new FGlobalTabmanager()); }

private:
	FGlobalTabmanager();
};
