// Copyright Nimbrel. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Modules/ModuleInterface.h"

class FSpawnTabArgs;
class FUICommandList;
class SDockTab;
class SNotificationItem;
class SWidget;
struct FPlacementCategoryInfo;

/** The plugin's editor module: registers everything the plugin adds to the editor. */
class FCastellanEditorModule : public IModuleInterface
{
public:
	FCastellanEditorModule();

	virtual void StartupModule() override;
	virtual void ShutdownModule() override;

	/** Opens the Livestream Wizard tab, or brings it to the front when it is open already. */
	void PluginButtonClicked();

	/** Shows the plugin's version and the engine version it was made for. */
	void PluginVersionClicked();

	/** Offers a newer plugin version in a notification, unless the user skipped that version. */
	void OnUpgradeAvailable(FString DisplayVersion, FString DownloadAddress);

	/** The id of the Livestream Wizard's nomad tab. */
	static const FName LivestreamWizardTabName;

private:
	TSharedRef<SDockTab> OnSpawnPluginTab(const FSpawnTabArgs& SpawnTabArgs);
	void MapCommands();
	void RegisterMenus();
	static TSharedRef<SWidget> GenerateMenu(TSharedPtr<FUICommandList> InCommandList);
	static void LaunchWebPage(const TCHAR* Address);
	void RegisterComposureCustomisation();

	void RegisterPlacementModeCategory();
	void RegisterPlaceableItems(const FPlacementCategoryInfo* Info);

	void LoadUpgradeSettings();
	void SaveUpgradeSettings();
	void OnDownloadNowClicked(FString DownloadAddress);
	void OnRemindMeLaterClicked();
	void OnSkipVersionClicked();
	void CloseUpgradeNotification();

	FName PlacementCategoryHandle;
	TSharedPtr<FUICommandList> PluginCommands;
	FDelegateHandle UpgradeAvailableHandle;
	TWeakPtr<SNotificationItem> UpgradeNotification;
	FString LastOfferedVersion;
	bool bSkipLastOfferedVersion;
	FDelegateHandle EngineLoopInitCompleteHandle;
};
