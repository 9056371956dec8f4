#include "CastellanEditor.h"
#include "CastellanEditorStyle.h"
#include "Framework/Docking/TabManager.h"
#include "HeadlessEditorSession.h"
#include "HeadlessTabs.h"
#include "Misc/CoreDelegates.h"
#include "Modules/ModuleManager.h"
#include "PropertyEditorModule.h"
#include "SLivestreamWizard.h"
#include "Styling/SlateStyleRegistry.h"
#include "ToolMenus.h"
#include "WidgetDriver.h"
#include "Widgets/Docking/SDockTab.h"

#include <gtest/gtest.h>

namespace
{
	const FName WizardTab(TEXT("LivestreamWizard"));

	FCastellanEditorModule& GetEditorModule()
	{
		return FModuleManager::GetModuleChecked<FCastellanEditorModule>(TEXT("CastellanEditor"));
	}

	/** Whether anything the module registers with the editor is still there. */
	void ExpectNothingRegisteredFor(const void* Module)
	{
		EXPECT_FALSE(FGlobalTabmanager::Get()->HasTabSpawner(WizardTab));
		EXPECT_EQ(FSlateStyleRegistry::FindSlateStyle(FCastellanEditorStyle::GetStyleSetName()), nullptr);
		EXPECT_FALSE(FCoreDelegates::OnFEngineLoopInitComplete.IsBoundToObject(Module));
		EXPECT_FALSE(UToolMenus::HasStartupCallbackFor(Module));
	}
}

TEST(ModuleLifecycle, StartupRegistersTheWizardTabWithItsTitleTooltipAndIcon)
{
	FHeadlessEditorSession Session;

	const TSharedPtr<const FTabSpawnerEntry> Spawner = UE::Headless::FindNomadTabSpawner(WizardTab);
	ASSERT_TRUE(Spawner.IsValid());
	EXPECT_EQ(Spawner->GetDisplayName().ToString(), TEXT("Livestream Wizard"));
	EXPECT_EQ(Spawner->GetTooltipText().ToString(), TEXT("Open the Livestream Wizard tab."));
	EXPECT_EQ(Spawner->GetIcon().GetStyleSetName(), FName(TEXT("CastellanEditorStyle")));
	EXPECT_EQ(Spawner->GetIcon().GetStyleName(), FName(TEXT("KyroCastellan.WizardIcon_16x")));
	EXPECT_NE(Spawner->GetIcon().GetIcon(), nullptr);
	EXPECT_NE(FSlateStyleRegistry::FindSlateStyle(TEXT("CastellanEditorStyle")), nullptr);
}

TEST(ModuleLifecycle, StartupTellsThePropertyEditorOnceThatCustomisationsChanged)
{
	FHeadlessEditorSession Session;

	const FPropertyEditorModule& PropertyEditor = FModuleManager::GetModuleChecked<FPropertyEditorModule>(TEXT("PropertyEditor"));
	EXPECT_EQ(PropertyEditor.GetCustomizationModuleChangedCount(), 1);
}

TEST(ModuleLifecycle, ShutdownLeavesNothingOfTheModuleRegistered)
{
	FHeadlessEditorSession Session;
	const void* Module = &GetEditorModule();

	Session.ShutdownEditorModule();

	ExpectNothingRegisteredFor(Module);
	EXPECT_FALSE(FModuleManager::Get().IsModuleLoaded(TEXT("CastellanEditor")));
}

TEST(ModuleLifecycle, ShutdownBeforeEngineInitialisationLeavesNoLateRegistrationBehind)
{
	FHeadlessEditorOptions Options;
	Options.bStartEditorModule = false;
	FHeadlessEditorSession Session(Options);
	Session.StartEditorModule();
	const void* Module = &GetEditorModule();
	ASSERT_TRUE(FCoreDelegates::OnFEngineLoopInitComplete.IsBoundToObject(Module));

	Session.ShutdownEditorModule();

	ExpectNothingRegisteredFor(Module);
}

TEST(ModuleLifecycle, TheModuleStartsAgainAfterShuttingDown)
{
	FHeadlessEditorSession Session;
	Session.ShutdownEditorModule();

	Session.StartEditorModule();

	EXPECT_TRUE(FGlobalTabmanager::Get()->HasTabSpawner(WizardTab));
	EXPECT_NE(FSlateStyleRegistry::FindSlateStyle(FCastellanEditorStyle::GetStyleSetName()), nullptr);
	GetEditorModule().PluginButtonClicked();
	EXPECT_TRUE(FGlobalTabmanager::Get()->FindExistingLiveTab(FTabId(WizardTab)).IsValid());
}

TEST(ModuleLifecycle, OpeningTheWizardTwiceShowsOneTab)
{
	FHeadlessEditorSession Session;

	GetEditorModule().PluginButtonClicked();
	const TSharedPtr<SDockTab> First = FGlobalTabmanager::Get()->FindExistingLiveTab(FTabId(WizardTab));
	GetEditorModule().PluginButtonClicked();
	const TSharedPtr<SDockTab> Second = FGlobalTabmanager::Get()->FindExistingLiveTab(FTabId(WizardTab));

	ASSERT_TRUE(First.IsValid());
	EXPECT_EQ(First, Second);
	EXPECT_EQ(UE::Headless::GetAttentionRequests(*First), 1);
}

TEST(ModuleLifecycle, TheWizardTabIsANomadTabHoldingTheWizard)
{
	FHeadlessEditorSession Session;

	GetEditorModule().PluginButtonClicked();
	const TSharedPtr<SDockTab> Tab = FGlobalTabmanager::Get()->FindExistingLiveTab(FTabId(WizardTab));

	ASSERT_TRUE(Tab.IsValid());
	EXPECT_EQ(Tab->GetTabRole(), ETabRole::NomadTab);
	EXPECT_EQ(Tab->GetContent()->GetType(), FName(TEXT("SLivestreamWizard")));
}
