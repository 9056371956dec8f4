#include "CastellanEditor.h"

#include "CastellanEditorStyle.h"
#include "DetailCustomisations/NDIActiveSenderNamesCustomisation.h"
#include "DetailCustomisations/ScreenCaptureDetailsCustomisation.h"
#include "DetailCustomisations/SpoutActiveSenderNamesCustomisation.h"
#include "DetailCustomisations/CaptureComponentDetailsCustomisation.h"
#include "DetailCustomisations/MediaOutputDetailsCustomisation.h"
#include "Framework/Docking/TabManager.h"
#include "Misc/CoreDelegates.h"
#include "Modules/ModuleManager.h"
#include "PropertyEditorModule.h"
#include "SLivestreamWizard.h"
#include "Textures/SlateIcon.h"
#include "ToolMenus.h"
#include "Widgets/Docking/SDockTab.h"

#define LOCTEXT_NAMESPACE "FCastellanEditorModule"

const FName FCastellanEditorModule::LivestreamWizardTabName(TEXT("LivestreamWizard"));

FCastellanEditorModule::FCastellanEditorModule()
	: PlacementCategoryHandle(TEXT("Nimbrel"))
{
}

void FCastellanEditorModule::StartupModule()
{
	FCastellanEditorStyle::Initialize();
	FCastellanEditorStyle::ReloadTextures();

	FGlobalTabmanager::Get()->RegisterNomadTabSpawner(LivestreamWizardTabName, FOnSpawnTab::CreateRaw(this, &FCastellanEditorModule::OnSpawnPluginTab)).SetDisplayName(LOCTEXT("LivestreamWizardTitle", "Livestream Wizard")).SetTooltipText(LOCTEXT("LivestreamWizardTooltipText", "Open the Livestream Wizard tab.")).SetIcon(FSlateIcon(FCastellanEditorStyle::GetStyleSetName(), TEXT("KyroCastellan.WizardIcon_16x")));

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
}

void FCastellanEditorModule::ShutdownModule()
{
	UToolMenus::UnRegisterStartupCallback(this);
	UToolMenus::UnregisterOwner(this);

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
	return SNew(SDockTab)
		.TabRole(ETabRole::NomadTab)
			[SNew(SLivestreamWizard)];
}

void FCastellanEditorModule::RegisterMenus()
{
	FToolMenuOwnerScoped OwnerScoped(this);
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

#undef LOCTEXT_NAMESPACE

IMPLEMENT_MODULE(FCastellanEditorModule, CastellanEditor)
