// Copyright Nimbrel. All Rights Reserved.

#include "CastellanEditor.h"

#include "AuthDelegates.h"
#include "CastellanEditorCommands.h"
#include "CastellanEditorStyle.h"
#include "DetailCustomisations/CaptureComponentDetailsCustomisation.h"
#include "DetailCustomisations/MediaOutputDetailsCustomisation.h"
#include "DetailCustomisations/NDIActiveSenderNamesCustomisation.h"
#include "DetailCustomisations/ScreenCaptureDetailsCustomisation.h"
#include "DetailCustomisations/SpoutActiveSenderNamesCustomisation.h"
#include "Framework/Commands/UICommandList.h"
#include "Framework/Docking/TabManager.h"
#include "IPlacementModeModule.h"
#include "Kyro360CamCapture.h"
#include "KyroCineCamCapture.h"
#include "KyroMediaOutput.h"
#include "KyroNDIReceiverManager.h"
#include "KyroNDISenderManager.h"
#include "KyroScreenCapture.h"
#include "KyroSpoutReceiverManager.h"
#include "KyroSpoutSenderManager.h"
#include "KyroViewportCapture.h"
#include "KyroVirtualWebcamOutput.h"
#include "Misc/CoreDelegates.h"
#include "Modules/ModuleManager.h"
#include "PropertyEditorModule.h"
#include "SLivestreamWizard.h"
#include "Textures/SlateIcon.h"
#include "ToolMenus.h"
#include "UObject/Class.h"
#include "Widgets/Docking/SDockTab.h"

#define LOCTEXT_NAMESPACE "FCastellanEditorModule"

const FName FCastellanEditorModule::LivestreamWizardTabName(TEXT("LivestreamWizard"));

FCastellanEditorModule::FCastellanEditorModule()
	: PlacementCategoryHandle(TEXT("Nimbrel"))
	, bSkipLastOfferedVersion(false)
{
}

void FCastellanEditorModule::StartupModule()
{
	FCastellanEditorStyle::Initialize();
	FCastellanEditorStyle::ReloadTextures();

	// clang-format off
	FGlobalTabmanager::Get()->RegisterNomadTabSpawner(LivestreamWizardTabName, FOnSpawnTab::CreateRaw(this, &FCastellanEditorModule::OnSpawnPluginTab))
		.SetDisplayName(LOCTEXT("LivestreamWizardTitle", "Livestream Wizard"))
		.SetTooltipText(LOCTEXT("LivestreamWizardTooltipText", "Open the Livestream Wizard tab."))
		.SetIcon(FSlateIcon(FCastellanEditorStyle::GetStyleSetName(), TEXT("KyroCastellan.WizardIcon_16x")));
	// clang-format on

	FCastellanEditorCommands::Register();
	PluginCommands = MakeShareable(new FUICommandList);
	MapCommands();

	// The composition module may load after this one; look for it once the engine has started.
	EngineLoopInitCompleteHandle = FCoreDelegates::OnFEngineLoopInitComplete.AddRaw(this, &FCastellanEditorModule::RegisterComposureCustomisation);

	UToolMenus::RegisterStartupCallback(FSimpleMulticastDelegate::FDelegate::CreateRaw(this, &FCastellanEditorModule::RegisterMenus));

	FPropertyEditorModule& PropertyModule = FModuleManager::LoadModuleChecked<FPropertyEditorModule>(TEXT("PropertyEditor"));
	PropertyModule.RegisterCustomPropertyTypeLayout(TEXT("KyroSpoutReceiverInterface"), FOnGetPropertyTypeCustomizationInstance::CreateStatic(&FSpoutActiveSenderNamesCustomisation::MakeInstance));
	PropertyModule.RegisterCustomPropertyTypeLayout(TEXT("KyroScreenCaptureOptions"), FOnGetPropertyTypeCustomizationInstance::CreateStatic(&FScreenCaptureDetailsCustomisation::MakeInstance));
	if (FModuleManager::Get().IsModuleLoaded(TEXT("KyroNDI")))
	{
		PropertyModule.RegisterCustomPropertyTypeLayout(TEXT("KyroNDIReceiverInterface"), FOnGetPropertyTypeCustomizationInstance::CreateStatic(&FNDIActiveSenderNamesCustomisation::MakeInstance));
	}
	PropertyModule.RegisterCustomClassLayout(TEXT("KyroCaptureComponent"), FOnGetDetailCustomizationInstance::CreateStatic(&FCaptureComponentDetailsCustomisation::MakeInstance));
	PropertyModule.RegisterCustomClassLayout(TEXT("Kyro360CaptureComponent"), FOnGetDetailCustomizationInstance::CreateStatic(&FCaptureComponentDetailsCustomisation::MakeInstance));
	PropertyModule.RegisterCustomClassLayout(TEXT("KyroMediaOutput"), FOnGetDetailCustomizationInstance::CreateStatic(&FMediaOutputDetailsCustomisation::MakeInstance));
	PropertyModule.NotifyCustomizationModuleChanged();

	LoadUpgradeSettings();
	UpgradeAvailableHandle = AuthDelegates::OnUpgradeAvailable.AddRaw(this, &FCastellanEditorModule::OnUpgradeAvailable);

	RegisterPlacementModeCategory();
}

void FCastellanEditorModule::ShutdownModule()
{
	// Asking for the placement mode would load it; leave it alone if it has gone already.
	if (FModuleManager::Get().IsModuleLoaded(TEXT("PlacementMode")))
	{
		IPlacementModeModule::Get().UnregisterPlacementCategory(PlacementCategoryHandle);
	}

	if (UpgradeAvailableHandle.IsValid())
	{
		AuthDelegates::OnUpgradeAvailable.Remove(UpgradeAvailableHandle);
	}

	UToolMenus::UnRegisterStartupCallback(this);
	UToolMenus::UnregisterOwner(this);

	FCastellanEditorCommands::Unregister();

	FGlobalTabmanager::Get()->UnregisterNomadTabSpawner(LivestreamWizardTabName);

	FCastellanEditorStyle::Shutdown();

	if (EngineLoopInitCompleteHandle.IsValid())
	{
		FCoreDelegates::OnFEngineLoopInitComplete.Remove(EngineLoopInitCompleteHandle);
	}
}

void FCastellanEditorModule::PluginButtonClicked()
{
	FGlobalTabmanager::Get()->TryInvokeTab(FTabId(LivestreamWizardTabName));
}

TSharedRef<SDockTab> FCastellanEditorModule::OnSpawnPluginTab(const FSpawnTabArgs& SpawnTabArgs)
{
	// clang-format off
	return SNew(SDockTab)
		.TabRole(ETabRole::NomadTab)
		[
			SNew(SLivestreamWizard)
		];
	// clang-format on
}

void FCastellanEditorModule::RegisterComposureCustomisation()
{
	if (!FModuleManager::Get().IsModuleLoaded(TEXT("KyroComposure")))
	{
		return;
	}

	FPropertyEditorModule& PropertyModule = FModuleManager::LoadModuleChecked<FPropertyEditorModule>(TEXT("PropertyEditor"));
	PropertyModule.RegisterCustomClassLayout(TEXT("KyroCGCaptureComponent"), FOnGetDetailCustomizationInstance::CreateStatic(&FCaptureComponentDetailsCustomisation::MakeInstance));
}

void FCastellanEditorModule::RegisterPlacementModeCategory()
{
	IPlacementModeModule& PlacementMode = IPlacementModeModule::Get();
	const FPlacementCategoryInfo* Info = PlacementMode.GetRegisteredPlacementCategory(PlacementCategoryHandle);
	if (!Info)
	{
		// A category left by an earlier run of this module keeps its record; only a missing one is made.
		const FPlacementCategoryInfo CategoryInfo(
			NSLOCTEXT("PlacementMode", "NimbrelCategoryName", "Nimbrel"),
			FSlateIcon(FCastellanEditorStyle::GetStyleSetName(), TEXT("KyroCastellan.PluginTaskbarIcon")),
			PlacementCategoryHandle,
			TEXT("PMNimbrel"),
			25,
			true);
		PlacementMode.RegisterPlacementCategory(CategoryInfo);
		Info = PlacementMode.GetRegisteredPlacementCategory(PlacementCategoryHandle);
	}
	RegisterPlaceableItems(Info);
}

void FCastellanEditorModule::RegisterPlaceableItems(const FPlacementCategoryInfo* Info)
{
	IPlacementModeModule& PlacementMode = IPlacementModeModule::Get();
	TArray<UClass*> Classes{
		AKyroCineCamCapture::StaticClass(),
		AKyroSpoutSenderManager::StaticClass(),
		AKyroSpoutReceiverManager::StaticClass(),
		AKyro360CamCapture::StaticClass(),
		AKyroViewportCapture::StaticClass(),
		AKyroMediaOutput::StaticClass(),
		AKyroScreenCapture::StaticClass(),
		AKyroVirtualWebcamOutput::StaticClass(),
	};
	if (FModuleManager::Get().IsModuleLoaded(TEXT("KyroNDI")))
	{
		Classes.Add(AKyroNDISenderManager::StaticClass());
		Classes.Add(AKyroNDIReceiverManager::StaticClass());
	}
	for (UClass* Class : Classes)
	{
		// No factory of our own: the placement mode picks the one for the class.
		PlacementMode.RegisterPlaceableItem(Info->UniqueHandle, MakeShareable(new FPlaceableItem(nullptr, FAssetData(Class))));
	}
}

#undef LOCTEXT_NAMESPACE

IMPLEMENT_MODULE(FCastellanEditorModule, CastellanEditor)
