#pragma once

#include "CoreMinimal.h"
#include "Templates/UniquePtr.h"

class FHeadlessLevelViewports;

/** A viewport of the level editor: where its camera is. */
struct FHeadlessLevelViewportOptions
{
	/** The level editor's default perspective camera. */
	FVector ViewLocation = FVector(0.0, 1024.0, 512.0);
	FRotator ViewRotation = FRotator(-15.0, -90.0, 0.0);
};

/** How a headless editor session starts: which optional modules exist, the plugin's descriptor and so on. */
struct FHeadlessEditorOptions
{
	/** Whether the plugin's NDI runtime module loads before the editor module. */
	bool bKyroNDILoaded = true;
	/** Whether the plugin's composition runtime module loads before the editor module. */
	bool bKyroComposureLoaded = false;
	/** Whether a play-in-editor session is running from the start. */
	bool bPlaySessionRunning = false;
	/** Whether the editor loads the plugin's editor module and finishes initialising by itself. */
	bool bStartEditorModule = true;
	/** Whether the editor has loaded its placement mode before plugin modules start. */
	bool bPlacementModeLoaded = true;
	/** Whether the plugin is installed at all (its descriptor found by the plugin manager). */
	bool bPluginInstalled = true;
	FString PluginVersionName = TEXT("1.0");
	FString PluginEngineVersion = TEXT("5.1.0");
	/** The level editor's viewports, in creation order; by default one perspective viewport. */
	TArray<FHeadlessLevelViewportOptions> LevelViewports{FHeadlessLevelViewportOptions()};
	/** Which of LevelViewports is the active one; INDEX_NONE for none. */
	int32 ActiveLevelViewport = 0;
};

/**
 * A headless editor process: boots the engine stand-ins, loads the plugin's runtime modules and
 * its editor module as the editor loads a plugin in the "PostEngineInit" phase, broadcasts the end
 * of engine initialisation, and shuts everything down again when destroyed.
 */
class HEADLESSTESTING_API FHeadlessEditorSession
{
public:
	explicit FHeadlessEditorSession(const FHeadlessEditorOptions& InOptions = FHeadlessEditorOptions());
	~FHeadlessEditorSession();

	FHeadlessEditorSession(const FHeadlessEditorSession&) = delete;
	FHeadlessEditorSession& operator=(const FHeadlessEditorSession&) = delete;

	/** Loads and starts the editor module, as the editor does when the plugin's phase comes. */
	void StartEditorModule();
	/** Shuts the editor module down and unloads it, as the editor does at exit. */
	void ShutdownEditorModule();
	/** Broadcasts what the engine loop broadcasts once every start-up phase has loaded. */
	void FinishEngineInitialisation();

	void StartPlaySession();
	void EndPlaySession();

	/** The root directory the plugin is installed in (this repository). */
	static FString GetPluginBaseDir();

	const FHeadlessEditorOptions& GetOptions() const { return Options; }

private:
	FHeadlessEditorOptions Options;
	TUniquePtr<FHeadlessLevelViewports> LevelViewports;
};
