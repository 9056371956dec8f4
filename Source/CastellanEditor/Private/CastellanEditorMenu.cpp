// Copyright Nimbrel. All Rights Reserved.

#include "CastellanEditor.h"

#include "CastellanEditorCommands.h"
#include "CastellanEditorStyle.h"
#include "CastellanEditorWebLinks.h"
#include "Framework/Commands/UICommandList.h"
#include "Framework/MultiBox/MultiBoxBuilder.h"
#include "HAL/PlatformProcess.h"
#include "Interfaces/IPluginManager.h"
#include "KyroBlueprintFunctionLibrary.h"
#include "Misc/MessageDialog.h"
#include "PluginDescriptor.h"
#include "Textures/SlateIcon.h"
#include "ToolMenus.h"

#define LOCTEXT_NAMESPACE "FCastellanEditorModule"

void FCastellanEditorModule::MapCommands()
{
	const FCastellanEditorCommands& Commands = FCastellanEditorCommands::Get();

	PluginCommands->MapAction(Commands.UseLivestreamWizard, FExecuteAction::CreateRaw(this, &FCastellanEditorModule::PluginButtonClicked), FCanExecuteAction());
	PluginCommands->MapAction(Commands.AffiliateScheme, FExecuteAction::CreateStatic(&FCastellanEditorModule::LaunchWebPage, CastellanEditorWebLinks::AffiliateScheme), FCanExecuteAction());
	// The toggles' check state stays in the runtime, which blueprints may change too: ask it every time.
	PluginCommands->MapAction(Commands.EditorViewportRendering, FExecuteAction::CreateStatic(&UKyroBlueprintFunctionLibrary::ToggleEditorViewportRendering), FCanExecuteAction(), FIsActionChecked::CreateStatic(&UKyroBlueprintFunctionLibrary::GetIsEditorViewportRendering));
	PluginCommands->MapAction(Commands.RuntimeViewportRendering, FExecuteAction::CreateStatic(&UKyroBlueprintFunctionLibrary::ToggleRuntimeViewportRendering), FCanExecuteAction(), FIsActionChecked::CreateStatic(&UKyroBlueprintFunctionLibrary::GetIsRuntimeViewportRendering));
	PluginCommands->MapAction(Commands.PluginVersion, FExecuteAction::CreateRaw(this, &FCastellanEditorModule::PluginVersionClicked), FCanExecuteAction());
	PluginCommands->MapAction(Commands.KnowledgeCentre, FExecuteAction::CreateStatic(&FCastellanEditorModule::LaunchWebPage, CastellanEditorWebLinks::KnowledgeCentre), FCanExecuteAction());
	PluginCommands->MapAction(Commands.NimbrelWebsite, FExecuteAction::CreateStatic(&FCastellanEditorModule::LaunchWebPage, CastellanEditorWebLinks::NimbrelWebsite), FCanExecuteAction());
	PluginCommands->MapAction(Commands.DiscordCommunity, FExecuteAction::CreateStatic(&FCastellanEditorModule::LaunchWebPage, CastellanEditorWebLinks::DiscordCommunity), FCanExecuteAction());
	PluginCommands->MapAction(Commands.VideoTutorials, FExecuteAction::CreateStatic(&FCastellanEditorModule::LaunchWebPage, CastellanEditorWebLinks::VideoTutorials), FCanExecuteAction());
}

void FCastellanEditorModule::RegisterMenus()
{
	// Everything added here belongs to this module, so that shut-down removes it by owner.
	FToolMenuOwnerScoped OwnerScoped(this);

	UToolMenu* ToolbarMenu = UToolMenus::Get()->ExtendMenu(TEXT("LevelEditor.LevelEditorToolBar.AssetsToolBar"));
	FToolMenuSection& Section = ToolbarMenu->FindOrAddSection(TEXT("Content"));
	FToolMenuEntry ComboEntry = FToolMenuEntry::InitComboButton(
		TEXT("Nimbrel"),
		FUIAction(),
		FOnGetContent::CreateStatic(&FCastellanEditorModule::GenerateMenu, PluginCommands),
		LOCTEXT("NimbrelBtn", "Nimbrel"),
		LOCTEXT("NimbrelBtnTootlip", "Nimbrel"),
		FSlateIcon(FCastellanEditorStyle::GetStyleSetName(), TEXT("KyroCastellan.PluginTaskbarIcon")),
		false,
		TEXT("Nimbrel"));
	ComboEntry.StyleNameOverride = TEXT("CalloutToolbar");
	Section.AddEntry(ComboEntry);
}

TSharedRef<SWidget> FCastellanEditorModule::GenerateMenu(TSharedPtr<FUICommandList> InCommandList)
{
	const FCastellanEditorCommands& Commands = FCastellanEditorCommands::Get();
	FMenuBuilder MenuBuilder(true, InCommandList);

	MenuBuilder.BeginSection(TEXT("ToolsSection"), LOCTEXT("ToolsSection", "Tools"));
	MenuBuilder.AddMenuEntry(Commands.UseLivestreamWizard);
	MenuBuilder.EndSection();

	MenuBuilder.BeginSection(TEXT("SettingsSection"), FText::FromString(TEXT("Settings")));
	MenuBuilder.AddMenuEntry(Commands.EditorViewportRendering);
	MenuBuilder.AddMenuEntry(Commands.RuntimeViewportRendering);
	MenuBuilder.EndSection();

	MenuBuilder.BeginSection(TEXT("AccountSection"), FText::FromString(TEXT("Account")));
	MenuBuilder.AddMenuEntry(Commands.PluginVersion);
	MenuBuilder.AddMenuEntry(Commands.AffiliateScheme);
	MenuBuilder.EndSection();

	MenuBuilder.BeginSection(TEXT("Support Section"), FText::FromString(TEXT("Support")));
	MenuBuilder.AddMenuEntry(Commands.KnowledgeCentre);
	MenuBuilder.AddMenuEntry(Commands.VideoTutorials);
	MenuBuilder.AddMenuEntry(Commands.DiscordCommunity);
	MenuBuilder.AddMenuEntry(Commands.NimbrelWebsite);
	MenuBuilder.EndSection();

	return MenuBuilder.MakeWidget(nullptr, 1000);
}

void FCastellanEditorModule::PluginVersionClicked()
{
	FString VersionName;
	FString EngineVersion;
	if (const TSharedPtr<IPlugin> Plugin = IPluginManager::Get().FindPlugin(TEXT("KyroCastellan")))
	{
		const FPluginDescriptor Descriptor = Plugin->GetDescriptor();
		VersionName = Descriptor.VersionName;
		// The engine version the plugin declares, not the one running.
		EngineVersion = Descriptor.EngineVersion;
	}

	const FText DialogText = FText::Format(LOCTEXT("PluginButtonDialogText", "Plugin Version: {0} \nEngine Version: {1}"), FText::FromString(VersionName), FText::FromString(EngineVersion));
	FMessageDialog::Open(EAppMsgType::Ok, DialogText);
}

void FCastellanEditorModule::LaunchWebPage(const TCHAR* Address)
{
	FPlatformProcess::LaunchURL(Address, nullptr, nullptr);
}

#undef LOCTEXT_NAMESPACE
