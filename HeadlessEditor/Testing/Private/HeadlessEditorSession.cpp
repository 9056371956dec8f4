#include "HeadlessEditorSession.h"

#include "Editor.h"
#include "Editor/EditorEngine.h"
#include "Framework/Application/SlateApplication.h"
#include "HeadlessDesktop.h"
#include "HeadlessNotifications.h"
#include "HeadlessPlugins.h"
#include "HeadlessTabs.h"
#include "HeadlessEditorEngine.h"
#include "HeadlessLevelViewports.h"
#include "HeadlessSlateRenderer.h"
#include "Misc/CoreDelegates.h"
#include "Modules/ModuleManager.h"
#include "PlayInEditorDataTypes.h"
#include "ToolMenus.h"

namespace
{
	const TCHAR* EditorModuleName = TEXT("CastellanEditor");

	// Engine modules the editor has loaded before any plugin module starts.
	const TCHAR* EngineStartupModules[] = {TEXT("Projects"), TEXT("ToolMenus"), TEXT("AssetRegistry"), TEXT("AssetTools")};

	/** The level editor's toolbar of asset shortcuts, which plugins extend, as the level editor registers it. */
	void RegisterLevelEditorToolBars()
	{
		UToolMenu* AssetsToolBar = UToolMenus::Get()->RegisterMenu(TEXT("LevelEditor.LevelEditorToolBar.AssetsToolBar"), NAME_None, EMultiBoxType::SlimHorizontalToolBar);
		AssetsToolBar->StyleName = TEXT("AssetEditorToolbar");
		AssetsToolBar->AddSection(TEXT("Content"));
	}

	/** The plugin's runtime modules in descriptor order; each loads only if its stand-in exists. */
	TArray<FName> GetRuntimeModules(const FHeadlessEditorOptions& Options)
	{
		TArray<FName> Modules{TEXT("Castellan"), TEXT("KyroCamera"), TEXT("Kyro360Camera"), TEXT("KyroSpout")};
		if (Options.bKyroNDILoaded)
		{
			Modules.Add(TEXT("KyroNDI"));
		}
		Modules.Append({TEXT("KyroMedia"), TEXT("KyroVirtualWebcam"), TEXT("KyroScreenCapture")});
		if (Options.bKyroComposureLoaded)
		{
			Modules.Add(TEXT("KyroComposure"));
		}
		return Modules;
	}
}

FHeadlessEditorSession::FHeadlessEditorSession(const FHeadlessEditorOptions& InOptions)
	: Options(InOptions)
{
	FSlateApplication::Create();
	FSlateApplication::Get().InitializeRenderer(MakeShared<FHeadlessSlateRenderer>());

	if (Options.bPluginInstalled)
	{
		FPluginDescriptor Descriptor;
		Descriptor.FriendlyName = TEXT("KyroCastellan");
		Descriptor.VersionName = Options.PluginVersionName;
		Descriptor.EngineVersion = Options.PluginEngineVersion;
		UE::Headless::MountPlugin(TEXT("KyroCastellan"), GetPluginBaseDir(), Descriptor);
	}

	UE::Headless::CreateEditorEngine();
	LevelViewports = MakeUnique<FHeadlessLevelViewports>(Options.LevelViewports, Options.ActiveLevelViewport);
	for (const TCHAR* Module : EngineStartupModules)
	{
		FModuleManager::Get().LoadModuleChecked(Module);
	}
	RegisterLevelEditorToolBars();
	if (Options.bPlacementModeLoaded)
	{
		FModuleManager::Get().LoadModuleChecked(TEXT("PlacementMode"));
	}
	for (const FName& Module : GetRuntimeModules(Options))
	{
		FModuleManager::Get().LoadModule(Module);
	}
	if (Options.bPlaySessionRunning)
	{
		StartPlaySession();
	}
	if (Options.bStartEditorModule)
	{
		StartEditorModule();
		FinishEngineInitialisation();
	}
}

FHeadlessEditorSession::~FHeadlessEditorSession()
{
	FModuleManager::Get().UnloadModulesAtShutdown();
	UE::Headless::ResetNotifications();
	UE::Headless::ResetDesktop();
	LevelViewports.reset();
	UE::Headless::DestroyEditorEngine();
	UE::Headless::ResetTabs();
	FSlateApplication::Shutdown();
	UE::Headless::UnmountAllPlugins();
}

void FHeadlessEditorSession::StartEditorModule()
{
	FModuleManager::Get().LoadModuleChecked(EditorModuleName);
}

void FHeadlessEditorSession::ShutdownEditorModule()
{
	FModuleManager::Get().UnloadModule(EditorModuleName);
}

void FHeadlessEditorSession::FinishEngineInitialisation()
{
	FCoreDelegates::OnPostEngineInit.Broadcast();
	FCoreDelegates::OnFEngineLoopInitComplete.Broadcast();
}

void FHeadlessEditorSession::StartPlaySession()
{
	GEditor->RequestPlaySession(FRequestPlaySessionParams());
	GEditor->StartQueuedPlaySessionRequest();
}

void FHeadlessEditorSession::EndPlaySession()
{
	GEditor->RequestEndPlayMap();
	GEditor->EndPlayMap();
}

FString FHeadlessEditorSession::GetPluginBaseDir()
{
	return FString(CASTELLAN_REPOSITORY_ROOT);
}
