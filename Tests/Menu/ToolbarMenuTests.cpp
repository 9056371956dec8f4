#include "CastellanEditorCommands.h"
#include "Framework/Docking/TabManager.h"
#include "HeadlessDesktop.h"
#include "HeadlessMenus.h"
#include "HeadlessPlugins.h"
#include "HeadlessToolMenus.h"
#include "HeadlessEditorSession.h"
#include "Internationalization/Internationalization.h"
#include "KyroBlueprintFunctionLibrary.h"
#include "ToolMenus.h"
#include "ViewportRenderingControls.h"

#include <gtest/gtest.h>

namespace
{
	using UE::Headless::EMenuLineKind;
	using UE::Headless::FMenuLine;

	FToolMenuEntry* FindToolbarButton()
	{
		UToolMenu* Toolbar = UToolMenus::Get()->FindMenu(TEXT("LevelEditor.LevelEditorToolBar.AssetsToolBar"));
		FToolMenuSection* Section = Toolbar ? Toolbar->FindSection(TEXT("Content")) : nullptr;
		return Section ? Section->FindEntry(TEXT("Nimbrel")) : nullptr;
	}

	/** Clicks the toolbar button: the combo runs its content generator, as the editor does on every open. */
	TSharedRef<SWidget> OpenMenu()
	{
		FToolMenuEntry* Button = FindToolbarButton();
		check(Button);
		return Button->ToolBarData.ComboButtonContextMenuGenerator.OnGetContent.Execute();
	}

	const FMenuLine& FindLine(const TArray<FMenuLine>& Lines, const FString& Label)
	{
		const FMenuLine* Line = Lines.FindByPredicate([&Label](const FMenuLine& Candidate)
			{ return Candidate.Kind == EMenuLineKind::Entry && Candidate.Label.ToString().Equals(Label); });
		check(Line);
		return *Line;
	}

	/** Resets the runtime switches, which live for the whole process as the runtime keeps them. */
	struct FViewportRenderingOn
	{
		FViewportRenderingOn()
		{
			HeadlessRuntime::SetEditorViewportRendering(true);
			HeadlessRuntime::SetRuntimeViewportRendering(true);
		}
	};
}

TEST(ToolbarMenu, CommandsCarryTheirLabelsTooltipsTypesAndLocalisationKeys)
{
	FHeadlessEditorSession Session;
	const FCastellanEditorCommands& Commands = FCastellanEditorCommands::Get();

	EXPECT_EQ(Commands.GetContextName(), FName(TEXT("CastellanEditor")));
	EXPECT_EQ(Commands.GetContextDesc().ToString(), TEXT("KyroCastellan Plugin"));
	EXPECT_EQ(Commands.GetStyleSetName(), FName(TEXT("CastellanEditorStyle")));

	const FUICommandInfo& Wizard = *Commands.UseLivestreamWizard;
	EXPECT_EQ(Wizard.GetLabel().ToString(), TEXT("Livestream Wizard"));
	EXPECT_TRUE(Wizard.GetDescription().ToString().Equals(TEXT("Use to create a simple Cinecam / 360 Cam  Capture and Spout / NDI setup to stream out of ue4")));
	EXPECT_EQ(FTextInspector::GetNamespace(Wizard.GetLabel()).Get(TEXT("")), TEXT("UICommands.FCastellanEditorModule"));
	EXPECT_TRUE(FTextInspector::GetKey(Wizard.GetLabel()).Get(TEXT("")).Equals(TEXT("UseLivestreamWizard")));
	EXPECT_TRUE(FTextInspector::GetKey(Wizard.GetDescription()).Get(TEXT("")).Equals(TEXT("UseLivestreamWizard_ToolTip")));
	EXPECT_EQ(Wizard.GetIcon().GetStyleName(), FName(TEXT("CastellanEditor.UseLivestreamWizard")));
	EXPECT_FALSE(Wizard.GetDefaultChord(EMultipleKeyBindingIndex::Primary).IsValidChord());

	EXPECT_EQ(Commands.EditorViewportRendering->GetUserInterfaceType(), EUserInterfaceActionType::ToggleButton);
	EXPECT_EQ(Commands.RuntimeViewportRendering->GetUserInterfaceType(), EUserInterfaceActionType::ToggleButton);
	EXPECT_EQ(Commands.PluginVersion->GetUserInterfaceType(), EUserInterfaceActionType::Button);
	EXPECT_EQ(Commands.AffiliateScheme->GetDescription().ToString(), TEXT("Join the Kyro Affiliate Scheme"));
}

TEST(ToolbarMenu, ShutdownUnregistersTheCommandsAndTheButton)
{
	FHeadlessEditorSession Session;
	ASSERT_TRUE(FCastellanEditorCommands::IsRegistered());
	ASSERT_NE(FindToolbarButton(), nullptr);

	Session.ShutdownEditorModule();

	EXPECT_FALSE(FCastellanEditorCommands::IsRegistered());
	EXPECT_FALSE(FInputBindingManager::Get().GetContextByName(TEXT("CastellanEditor")).IsValid());
	EXPECT_EQ(FindToolbarButton(), nullptr);
}

TEST(ToolbarMenu, ToolbarButtonIsACalloutComboWithNoActionOfItsOwn)
{
	FHeadlessEditorSession Session;
	const FToolMenuEntry* Button = FindToolbarButton();
	ASSERT_NE(Button, nullptr);

	EXPECT_EQ(Button->Type, EMultiBlockType::ToolBarComboButton);
	EXPECT_EQ(Button->StyleNameOverride, FName(TEXT("CalloutToolbar")));
	EXPECT_EQ(Button->TutorialHighlightName, FName(TEXT("Nimbrel")));
	EXPECT_EQ(Button->Label.Get().ToString(), TEXT("Nimbrel"));
	EXPECT_TRUE(FTextInspector::GetKey(Button->ToolTip.Get()).Get(TEXT("")).Equals(TEXT("NimbrelBtnTootlip")));
	EXPECT_EQ(Button->Icon.Get().GetStyleName(), FName(TEXT("KyroCastellan.PluginTaskbarIcon")));
	EXPECT_FALSE(Button->ToolBarData.bSimpleComboBox);
	const FUIAction* Action = UE::Headless::GetToolMenuEntryAction(*Button);
	ASSERT_NE(Action, nullptr);
	EXPECT_FALSE(Action->IsBound());
}

TEST(ToolbarMenu, MenuHasItsSectionsHeadingsAndEntriesInOrder)
{
	FViewportRenderingOn Reset;
	FHeadlessEditorSession Session;
	const TSharedRef<SWidget> Menu = OpenMenu();

	TArray<FString> Seen;
	for (const FMenuLine& Line : UE::Headless::ReadMenu(Menu))
	{
		Seen.Add((Line.Kind == EMenuLineKind::Heading ? TEXT("# ") : TEXT("")) + Line.Label.ToString() + TEXT(" @") + Line.ExtensionHook.ToString());
	}
	const TArray<FString> Expected{
		TEXT("# Tools @ToolsSection"),
		TEXT("Livestream Wizard @None"),
		TEXT("# Settings @SettingsSection"),
		TEXT("Editor Viewport Rendering @None"),
		TEXT("Runtime Viewport Rendering @None"),
		TEXT("# Account @AccountSection"),
		TEXT("Plugin Version @None"),
		TEXT("Affiliate Scheme @None"),
		TEXT("# Support @Support Section"),
		TEXT("Knowledge Centre @None"),
		TEXT("Video Tutorials @None"),
		TEXT("Discord Community @None"),
		TEXT("Nimbrel Website @None"),
	};
	EXPECT_EQ(Seen, Expected);

	const TArray<FMenuLine> Lines = UE::Headless::ReadMenu(Menu);
	EXPECT_TRUE(FTextInspector::GetKey(Lines[0].Label).Get(TEXT("")).Equals(TEXT("ToolsSection")));
	EXPECT_FALSE(FTextInspector::GetKey(Lines[2].Label).IsSet());
	EXPECT_EQ(UE::Headless::GetMenuMaxHeight(Menu).Get(0.0f), 1000.0f);
	for (const FMenuLine& Line : Lines)
	{
		EXPECT_TRUE(Line.bEnabled) << *Line.Label.ToString();
	}
}

TEST(ToolbarMenu, TogglesShowTheRuntimeSettingEachTimeTheMenuOpens)
{
	FViewportRenderingOn Reset;
	FHeadlessEditorSession Session;

	EXPECT_EQ(FindLine(UE::Headless::ReadMenu(OpenMenu()), TEXT("Editor Viewport Rendering")).CheckState, ECheckBoxState::Checked);

	EXPECT_TRUE(UE::Headless::ClickMenuEntry(OpenMenu(), TEXT("Editor Viewport Rendering")));
	EXPECT_FALSE(UKyroBlueprintFunctionLibrary::GetIsEditorViewportRendering());
	const TArray<FMenuLine> AfterClick = UE::Headless::ReadMenu(OpenMenu());
	EXPECT_EQ(FindLine(AfterClick, TEXT("Editor Viewport Rendering")).CheckState, ECheckBoxState::Unchecked);
	EXPECT_EQ(FindLine(AfterClick, TEXT("Runtime Viewport Rendering")).CheckState, ECheckBoxState::Checked);

	// Changed elsewhere, for example by a blueprint: an already built menu reads it too.
	const TSharedRef<SWidget> Menu = OpenMenu();
	HeadlessRuntime::SetRuntimeViewportRendering(false);
	HeadlessRuntime::SetEditorViewportRendering(true);
	EXPECT_EQ(FindLine(UE::Headless::ReadMenu(Menu), TEXT("Runtime Viewport Rendering")).CheckState, ECheckBoxState::Unchecked);
	EXPECT_EQ(FindLine(UE::Headless::ReadMenu(Menu), TEXT("Editor Viewport Rendering")).CheckState, ECheckBoxState::Checked);
}

TEST(ToolbarMenu, VersionDialogShowsTheDescriptorsVersions)
{
	FHeadlessEditorOptions Options;
	Options.PluginVersionName = TEXT("1.2");
	Options.PluginEngineVersion = TEXT("5.1.0");
	FHeadlessEditorSession Session(Options);
	UE::Headless::ResetDesktop();

	EXPECT_TRUE(UE::Headless::ClickMenuEntry(OpenMenu(), TEXT("Plugin Version")));

	const TArray<UE::Headless::FShownMessageDialog>& Dialogs = UE::Headless::GetShownMessageDialogs();
	ASSERT_EQ(Dialogs.Num(), 1);
	EXPECT_EQ(Dialogs[0].MessageType, EAppMsgType::Ok);
	EXPECT_TRUE(Dialogs[0].Message.ToString().Equals(TEXT("Plugin Version: 1.2 \nEngine Version: 5.1.0")));
	EXPECT_FALSE(Dialogs[0].Title.IsSet());
}

TEST(ToolbarMenu, VersionDialogShowsEmptyValuesWhenThePluginIsNotFound)
{
	// The style set needs the plugin at start-up (a missing one is fatal there), so it goes away afterwards.
	FHeadlessEditorSession Session;
	UE::Headless::UnmountAllPlugins();
	UE::Headless::ResetDesktop();

	EXPECT_TRUE(UE::Headless::ClickMenuEntry(OpenMenu(), TEXT("Plugin Version")));

	const TArray<UE::Headless::FShownMessageDialog>& Dialogs = UE::Headless::GetShownMessageDialogs();
	ASSERT_EQ(Dialogs.Num(), 1);
	EXPECT_TRUE(Dialogs[0].Message.ToString().Equals(TEXT("Plugin Version:  \nEngine Version: ")));
}

TEST(ToolbarMenu, EachLinkLaunchesItsOwnAddress)
{
	FHeadlessEditorSession Session;
	UE::Headless::ResetDesktop();
	const TArray<FString> Links{TEXT("Affiliate Scheme"), TEXT("Knowledge Centre"), TEXT("Video Tutorials"), TEXT("Discord Community"), TEXT("Nimbrel Website")};

	for (const FString& Link : Links)
	{
		EXPECT_TRUE(UE::Headless::ClickMenuEntry(OpenMenu(), Link));
	}

	const TArray<FString>& Launched = UE::Headless::GetLaunchedURLs();
	ASSERT_EQ(Launched.Num(), Links.Num());
	for (int32 Index = 0; Index < Launched.Num(); ++Index)
	{
		EXPECT_TRUE(Launched[Index].StartsWith(TEXT("https://"))) << *Launched[Index];
		for (int32 Other = 0; Other < Index; ++Other)
		{
			EXPECT_FALSE(Launched[Index].Equals(Launched[Other])) << *Links[Index] << " and " << *Links[Other];
		}
	}
	EXPECT_TRUE(UE::Headless::GetShownMessageDialogs().IsEmpty());
}

TEST(ToolbarMenu, WizardEntryOpensTheWizardTabOnce)
{
	FHeadlessEditorSession Session;
	ASSERT_FALSE(FGlobalTabmanager::Get()->FindExistingLiveTab(FTabId(TEXT("LivestreamWizard"))).IsValid());

	EXPECT_TRUE(UE::Headless::ClickMenuEntry(OpenMenu(), TEXT("Livestream Wizard")));
	const TSharedPtr<SDockTab> Tab = FGlobalTabmanager::Get()->FindExistingLiveTab(FTabId(TEXT("LivestreamWizard")));
	EXPECT_TRUE(Tab.IsValid());

	EXPECT_TRUE(UE::Headless::ClickMenuEntry(OpenMenu(), TEXT("Livestream Wizard")));
	EXPECT_EQ(FGlobalTabmanager::Get()->FindExistingLiveTab(FTabId(TEXT("LivestreamWizard"))), Tab);
}
