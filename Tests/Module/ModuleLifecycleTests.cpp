#include "AuthDelegates.h"
#include "CastellanEditor.h"
#include "CastellanEditorCommands.h"
#include "CastellanEditorStyle.h"
#include "Framework/Commands/InputBindingManager.h"
#include "Framework/Docking/TabManager.h"
#include "HeadlessEditorSession.h"
#include "HeadlessNotifications.h"
#include "HeadlessPropertyEditor.h"
#include "HeadlessTabs.h"
#include "HeadlessToolMenus.h"
#include "IPlacementModeModule.h"
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
		EXPECT_FALSE(UE::Headless::HasToolMenusStartupCallbackFor(Module));
	}

	/** The toolbar entries the module adds, however many there are. */
	int32 CountToolbarButtons()
	{
		UToolMenu* Toolbar = UToolMenus::Get()->FindMenu(TEXT("LevelEditor.LevelEditorToolBar.AssetsToolBar"));
		const FToolMenuSection* Section = Toolbar ? Toolbar->FindSection(TEXT("Content")) : nullptr;
		if (!Section)
		{
			return 0;
		}
		return Section->Blocks.FilterByPredicate([](const FToolMenuEntry& Entry)
								  { return Entry.Name == FName(TEXT("Nimbrel")); })
			.Num();
	}

	int32 CountPlaceableItems()
	{
		TArray<TSharedPtr<FPlaceableItem>> Items;
		IPlacementModeModule::Get().GetItemsForCategory(TEXT("Nimbrel"), Items);
		return Items.Num();
	}

	int32 CountNotifications()
	{
		return UE::Headless::GetNotifications().Num();
	}

	/** What the module has registered while it runs, counted so that a duplicate shows. */
	void ExpectRegisteredOnce()
	{
		EXPECT_TRUE(FGlobalTabmanager::Get()->HasTabSpawner(WizardTab));
		EXPECT_TRUE(FCastellanEditorCommands::IsRegistered());
		EXPECT_TRUE(FInputBindingManager::Get().GetContextByName(TEXT("CastellanEditor")).IsValid());
		EXPECT_NE(FSlateStyleRegistry::FindSlateStyle(FCastellanEditorStyle::GetStyleSetName()), nullptr);
		EXPECT_EQ(CountToolbarButtons(), 1);
		EXPECT_NE(IPlacementModeModule::Get().GetRegisteredPlacementCategory(TEXT("Nimbrel")), nullptr);
		EXPECT_EQ(CountPlaceableItems(), 10);
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
	EXPECT_EQ(UE::Headless::GetCustomizationModuleChangedCount(), 1);
}

TEST(ModuleLifecycle, CompositionCaptureIsCustomisedOnlyOnceTheEngineLoopHasStartedAndTheModuleIsLoaded)
{
	for (const bool bComposureLoaded : {true, false})
	{
		FHeadlessEditorOptions Options;
		Options.bKyroComposureLoaded = bComposureLoaded;
		Options.bStartEditorModule = false;
		FHeadlessEditorSession Session(Options);
		Session.StartEditorModule();

		const FPropertyEditorModule& PropertyEditor = FModuleManager::LoadModuleChecked<FPropertyEditorModule>(TEXT("PropertyEditor"));
		const FName CGClass(TEXT("KyroCGCaptureComponent"));
		EXPECT_TRUE(PropertyEditor.GetClassNameToDetailLayoutNameMap().Contains(FName(TEXT("KyroCaptureComponent"))));
		EXPECT_TRUE(PropertyEditor.GetClassNameToDetailLayoutNameMap().Contains(FName(TEXT("Kyro360CaptureComponent"))));
		EXPECT_TRUE(PropertyEditor.GetClassNameToDetailLayoutNameMap().Contains(FName(TEXT("KyroMediaOutput"))));
		EXPECT_FALSE(PropertyEditor.GetClassNameToDetailLayoutNameMap().Contains(CGClass));
		const int32 ChangesBefore = UE::Headless::GetCustomizationModuleChangedCount();

		Session.FinishEngineInitialisation();
		EXPECT_EQ(PropertyEditor.GetClassNameToDetailLayoutNameMap().Contains(CGClass), bComposureLoaded);
		EXPECT_EQ(UE::Headless::GetCustomizationModuleChangedCount(), ChangesBefore);
	}
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

TEST(ModuleLifecycle, AHundredStartsAndShutdownsInOneSessionLeaveNothingBehind)
{
	FHeadlessEditorSession Session;
	const FPropertyEditorModule& PropertyEditor = FModuleManager::GetModuleChecked<FPropertyEditorModule>(TEXT("PropertyEditor"));
	const int32 ClassLayouts = PropertyEditor.GetClassNameToDetailLayoutNameMap().Num();
	Session.ShutdownEditorModule();
	const bool bEngineInitBoundByOthers = FCoreDelegates::OnFEngineLoopInitComplete.IsBound();
	const bool bUpgradeBoundByOthers = AuthDelegates::OnUpgradeAvailable.IsBound();

	for (int32 Cycle = 0; Cycle < 100; ++Cycle)
	{
		SCOPED_TRACE(testing::Message() << "cycle " << Cycle);
		Session.StartEditorModule();
		const void* Module = &GetEditorModule();
		ExpectRegisteredOnce();
		EXPECT_TRUE(FCoreDelegates::OnFEngineLoopInitComplete.IsBoundToObject(Module));
		EXPECT_TRUE(AuthDelegates::OnUpgradeAvailable.IsBoundToObject(Module));

		Session.ShutdownEditorModule();

		ExpectNothingRegisteredFor(Module);
		EXPECT_FALSE(FCastellanEditorCommands::IsRegistered());
		EXPECT_FALSE(FInputBindingManager::Get().GetContextByName(TEXT("CastellanEditor")).IsValid());
		EXPECT_EQ(CountToolbarButtons(), 0);
		EXPECT_EQ(IPlacementModeModule::Get().GetRegisteredPlacementCategory(TEXT("Nimbrel")), nullptr);
		EXPECT_FALSE(AuthDelegates::OnUpgradeAvailable.IsBoundToObject(Module));
		EXPECT_EQ(FCoreDelegates::OnFEngineLoopInitComplete.IsBound(), bEngineInitBoundByOthers);
		EXPECT_EQ(AuthDelegates::OnUpgradeAvailable.IsBound(), bUpgradeBoundByOthers);
		EXPECT_EQ(CountNotifications(), 0);
		if (HasFailure())
		{
			break;
		}
	}

	// The customisations stay registered until the editor exits, once each.
	EXPECT_EQ(PropertyEditor.GetClassNameToDetailLayoutNameMap().Num(), ClassLayouts);
	for (const TCHAR* TypeName : {TEXT("KyroSpoutReceiverInterface"), TEXT("KyroScreenCaptureOptions"), TEXT("KyroNDIReceiverInterface")})
	{
		EXPECT_EQ(UE::Headless::GetPropertyTypeLayoutCount(TypeName), 1) << TCHAR_TO_UTF8(TypeName);
	}
	Session.StartEditorModule();
	ExpectRegisteredOnce();
}
