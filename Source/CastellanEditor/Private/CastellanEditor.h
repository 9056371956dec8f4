#pragma once

#include "CoreMinimal.h"
#include "Modules/ModuleInterface.h"

class FSpawnTabArgs;
class SDockTab;

/** The plugin's editor module: registers everything the plugin adds to the editor. */
class FCastellanEditorModule : public IModuleInterface
{
public:
	FCastellanEditorModule();

	virtual void StartupModule() override;
	virtual void ShutdownModule() override;

	/** Opens the Livestream Wizard tab, or brings it to the front when it is open already. */
	void PluginButtonClicked();

	/** The id of the Livestream Wizard's nomad tab. */
	static const FName LivestreamWizardTabName;

private:
	TSharedRef<SDockTab> OnSpawnPluginTab(const FSpawnTabArgs& SpawnTabArgs);
	void RegisterMenus();
	void RegisterComposureCustomisation();

	FName PlacementCategoryHandle;
	FDelegateHandle EngineLoopInitCompleteHandle;
};
