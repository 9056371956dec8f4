#include "Framework/Application/SlateApplication.h"
#include "Misc/CoreDelegates.h"
#include "HeadlessToolMenus.h"
#include "Modules/ModuleManager.h"
#include "ToolMenus.h"

#include <gtest/gtest.h>

#define LOCTEXT_NAMESPACE "ToolMenus"

namespace
{
	/** Something that registers menus at start-up, as an editor module does. */
	struct FMenuRegistrant
	{
		void RegisterMenus() { ++Calls; }

		FSimpleMulticastDelegate::FDelegate MakeCallback() { return FSimpleMulticastDelegate::FDelegate::CreateRaw(this, &FMenuRegistrant::RegisterMenus); }

		int32 Calls = 0;
	};

	const FName ToolMenusModuleName(TEXT("ToolMenus"));

	class ToolMenus : public ::testing::Test
	{
	protected:
		virtual void TearDown() override
		{
			UToolMenus::UnRegisterStartupCallback(&First);
			UToolMenus::UnRegisterStartupCallback(&Second);
			FModuleManager::Get().UnloadModule(ToolMenusModuleName);
			if (FSlateApplication::IsInitialized())
			{
				FSlateApplication::Shutdown();
			}
		}

		static void StartSlateAndMenus()
		{
			FSlateApplication::Create();
			FModuleManager::Get().LoadModuleChecked(ToolMenusModuleName);
		}

		/** Starts Slate and the menus and extends the level editor's user toolbar, the menu most tests fill. */
		static UToolMenu* StartUserToolBar()
		{
			StartSlateAndMenus();
			return UToolMenus::Get()->ExtendMenu(TEXT("LevelEditor.LevelEditorToolBar.User"));
		}

		static FToolMenuEntry MakeEntry(const TCHAR* Name) { return FToolMenuEntry::InitComboButton(Name, FUIAction(), FNewToolMenuChoice()); }

		static TArray<FName> EntryNames(const FToolMenuSection& Section)
		{
			TArray<FName> Names;
			for (const FToolMenuEntry& Entry : Section.Blocks)
			{
				Names.Add(Entry.Name);
			}
			return Names;
		}

		FMenuRegistrant First;
		FMenuRegistrant Second;
	};

	TEST_F(ToolMenus, StartupCallbackRunsAtOnceWhenSlateAndMenusAreUp)
	{
		StartSlateAndMenus();

		const FDelegateHandle Handle = UToolMenus::RegisterStartupCallback(First.MakeCallback());

		EXPECT_EQ(First.Calls, 1);
		EXPECT_FALSE(Handle.IsValid()) << "A callback that already ran is not kept, so there is nothing to unregister";
		FCoreDelegates::OnPostEngineInit.Broadcast();
		EXPECT_EQ(First.Calls, 1) << "A callback that already ran does not run again at engine start-up";
	}

	TEST_F(ToolMenus, StartupCallbackWithoutSlateWaitsForPostEngineInitAndRunsOnce)
	{
		FModuleManager::Get().LoadModuleChecked(ToolMenusModuleName);

		const FDelegateHandle Handle = UToolMenus::RegisterStartupCallback(First.MakeCallback());
		EXPECT_TRUE(Handle.IsValid());
		EXPECT_EQ(First.Calls, 0);

		FSlateApplication::Create();
		FCoreDelegates::OnPostEngineInit.Broadcast();
		EXPECT_EQ(First.Calls, 1);

		FCoreDelegates::OnPostEngineInit.Broadcast();
		EXPECT_EQ(First.Calls, 1) << "Deferred callbacks are cleared once they ran";
	}

	TEST_F(ToolMenus, StartupCallbackWaitsWhileTheMenusModuleIsNotLoaded)
	{
		FSlateApplication::Create();

		UToolMenus::RegisterStartupCallback(First.MakeCallback());
		EXPECT_EQ(First.Calls, 0) << "Registering must not load the menus module";
		EXPECT_FALSE(IToolMenusModule::IsAvailable());

		FModuleManager::Get().LoadModuleChecked(ToolMenusModuleName);
		FCoreDelegates::OnPostEngineInit.Broadcast();
		EXPECT_EQ(First.Calls, 1);
	}

	TEST_F(ToolMenus, PostEngineInitWithoutSlateKeepsTheCallbacksWaiting)
	{
		FModuleManager::Get().LoadModuleChecked(ToolMenusModuleName);
		UToolMenus::RegisterStartupCallback(First.MakeCallback());

		FCoreDelegates::OnPostEngineInit.Broadcast();
		EXPECT_EQ(First.Calls, 0);
		EXPECT_TRUE(UE::Headless::HasToolMenusStartupCallbackFor(&First));
	}

	TEST_F(ToolMenus, UnRegisterStartupCallbackByPointerRemovesOnlyThatObjectsCallbacks)
	{
		FModuleManager::Get().LoadModuleChecked(ToolMenusModuleName);
		UToolMenus::RegisterStartupCallback(First.MakeCallback());
		UToolMenus::RegisterStartupCallback(First.MakeCallback());
		UToolMenus::RegisterStartupCallback(Second.MakeCallback());

		UToolMenus::UnRegisterStartupCallback(&First);

		EXPECT_FALSE(UE::Headless::HasToolMenusStartupCallbackFor(&First));
		EXPECT_TRUE(UE::Headless::HasToolMenusStartupCallbackFor(&Second));
		FSlateApplication::Create();
		FCoreDelegates::OnPostEngineInit.Broadcast();
		EXPECT_EQ(First.Calls, 0);
		EXPECT_EQ(Second.Calls, 1);
	}

	TEST_F(ToolMenus, UnRegisterStartupCallbackByHandleRemovesOnlyThatCallback)
	{
		FModuleManager::Get().LoadModuleChecked(ToolMenusModuleName);
		const FDelegateHandle FirstHandle = UToolMenus::RegisterStartupCallback(First.MakeCallback());
		UToolMenus::RegisterStartupCallback(First.MakeCallback());
		UToolMenus::RegisterStartupCallback(Second.MakeCallback());

		UToolMenus::UnRegisterStartupCallback(FirstHandle);

		FSlateApplication::Create();
		FCoreDelegates::OnPostEngineInit.Broadcast();
		EXPECT_EQ(First.Calls, 1) << "The second registration of the same object is a separate callback";
		EXPECT_EQ(Second.Calls, 1);
	}

	TEST_F(ToolMenus, GetLoadsTheMenusModuleButTryGetAndUnregisterOwnerDoNot)
	{
		EXPECT_EQ(UToolMenus::TryGet(), nullptr);
		UToolMenus::UnregisterOwner(&First);
		EXPECT_FALSE(IToolMenusModule::IsAvailable());

		UToolMenus* ToolMenus = UToolMenus::Get();

		ASSERT_NE(ToolMenus, nullptr);
		EXPECT_TRUE(IToolMenusModule::IsAvailable());
		EXPECT_EQ(UToolMenus::TryGet(), ToolMenus);
	}

	TEST_F(ToolMenus, NameOwnersCompareByNameIgnoringCaseAndDifferFromPointerOwners)
	{
		int32 Object = 0;
		const FToolMenuOwner NamedOwner(TEXT("CastellanProbe"));

		EXPECT_TRUE(NamedOwner.IsSet());
		EXPECT_EQ(NamedOwner, FToolMenuOwner(FName(TEXT("castellanprobe"))));
		EXPECT_EQ(NamedOwner, FToolMenuOwner("CastellanProbe"));
		EXPECT_NE(NamedOwner, FToolMenuOwner(TEXT("OtherProbe")));
		EXPECT_EQ(NamedOwner.TryGetName(), FName(TEXT("CastellanProbe")));

		const FToolMenuOwner PointerOwner(&Object);
		EXPECT_TRUE(PointerOwner.IsSet());
		EXPECT_EQ(PointerOwner, FToolMenuOwner(&Object));
		EXPECT_NE(PointerOwner, NamedOwner);
		EXPECT_EQ(PointerOwner.TryGetName(), NAME_None);

		EXPECT_FALSE(FToolMenuOwner(NAME_None).IsSet());
		EXPECT_EQ(FToolMenuOwner(NAME_None), FToolMenuOwner());
		EXPECT_FALSE(FToolMenuOwner(static_cast<void*>(nullptr)).IsSet());
	}

	TEST_F(ToolMenus, UnregisterOwnerRemovesOnlyThatOwnersEntriesAndEmptiedSections)
	{
		UToolMenu* const Menu = StartUserToolBar();
		{
			FToolMenuOwnerScoped Scope(&First);
			Menu->FindOrAddSection(TEXT("Shared")).AddEntry(MakeEntry(TEXT("FirstInShared")));
			Menu->FindOrAddSection(TEXT("FirstOnly")).AddEntry(MakeEntry(TEXT("FirstAlone")));
		}
		{
			FToolMenuOwnerScoped Scope(&Second);
			Menu->FindOrAddSection(TEXT("Shared")).AddEntry(MakeEntry(TEXT("SecondInShared")));
			Menu->AddSection(TEXT("SecondEmpty"));
		}

		UToolMenus::UnregisterOwner(&First);

		ASSERT_NE(Menu->FindSection(TEXT("Shared")), nullptr) << "A section keeps living while other owners' entries are in it";
		EXPECT_EQ(EntryNames(*Menu->FindSection(TEXT("Shared"))), TArray<FName>({TEXT("SecondInShared")}));
		EXPECT_EQ(Menu->FindSection(TEXT("FirstOnly")), nullptr);
		EXPECT_NE(Menu->FindSection(TEXT("SecondEmpty")), nullptr) << "Only the unregistered owner's empty sections go";
	}

	TEST_F(ToolMenus, UnregisterOwnerByNameLeavesPointerOwnedEntries)
	{
		UToolMenu* const Menu = StartUserToolBar();
		{
			FToolMenuOwnerScoped Scope(TEXT("NamedProbe"));
			Menu->FindOrAddSection(TEXT("Content")).AddEntry(MakeEntry(TEXT("Named")));
		}
		{
			FToolMenuOwnerScoped Scope(&First);
			Menu->FindOrAddSection(TEXT("Content")).AddEntry(MakeEntry(TEXT("Pointer")));
		}

		UToolMenus::UnregisterOwner(FToolMenuOwner(TEXT("namedprobe")));

		EXPECT_EQ(EntryNames(*Menu->FindSection(TEXT("Content"))), TArray<FName>({TEXT("Pointer")}));
	}

	TEST_F(ToolMenus, UnregisteringTheUnsetOwnerRemovesNothing)
	{
		UToolMenu* const Menu = StartUserToolBar();
		Menu->FindOrAddSection(TEXT("Unowned")).AddEntry(MakeEntry(TEXT("Loose")));

		UToolMenus::UnregisterOwner(FToolMenuOwner());

		ASSERT_NE(Menu->FindSection(TEXT("Unowned")), nullptr);
		EXPECT_EQ(EntryNames(*Menu->FindSection(TEXT("Unowned"))), TArray<FName>({TEXT("Loose")}));
	}

	TEST_F(ToolMenus, AddEntryKeepsTheOwnerTheEntryWasMadeWith)
	{
		UToolMenu* const Menu = StartUserToolBar();
		const FToolMenuEntry MadeOutsideAnyScope = MakeEntry(TEXT("Outside"));
		{
			FToolMenuOwnerScoped Scope(&First);
			Menu->FindOrAddSection(TEXT("Content")).AddEntry(MadeOutsideAnyScope);
		}

		EXPECT_FALSE(Menu->FindSection(TEXT("Content"))->FindEntry(TEXT("Outside"))->Owner.IsSet());
		UToolMenus::UnregisterOwner(&First);
		EXPECT_NE(Menu->FindSection(TEXT("Content"))->FindEntry(TEXT("Outside")), nullptr);
	}

	TEST_F(ToolMenus, AddEntryWithATakenNameReplacesThatEntryInPlace)
	{
		UToolMenu* const Menu = StartUserToolBar();
		FToolMenuSection& Section = Menu->FindOrAddSection(TEXT("Content"));
		Section.AddEntry(MakeEntry(TEXT("Alpha")));
		Section.AddEntry(MakeEntry(TEXT("Beta")));

		FToolMenuEntry Replacement = MakeEntry(TEXT("Alpha"));
		Replacement.Label = LOCTEXT("Replaced", "Replaced");
		Section.AddEntry(Replacement);

		EXPECT_EQ(EntryNames(Section), TArray<FName>({TEXT("Alpha"), TEXT("Beta")}));
		EXPECT_EQ(Section.Blocks[0].Label.Get().ToString(), TEXT("Replaced"));
	}

	TEST_F(ToolMenus, UnnamedEntriesAreAlwaysAppended)
	{
		UToolMenu* const Menu = StartUserToolBar();
		FToolMenuSection& Section = Menu->FindOrAddSection(TEXT("Content"));
		Section.AddEntry(MakeEntry(TEXT("")));
		Section.AddEntry(MakeEntry(TEXT("")));

		EXPECT_EQ(Section.Blocks.Num(), 2);
	}

	TEST_F(ToolMenus, FindOrAddSectionReturnsTheExistingSection)
	{
		UToolMenu* const Menu = StartUserToolBar();
		FToolMenuSection& Added = Menu->FindOrAddSection(TEXT("Content"));
		Added.AddEntry(MakeEntry(TEXT("Kept")));

		FToolMenuSection& Found = Menu->FindOrAddSection(TEXT("content"));

		EXPECT_EQ(&Found, Menu->FindSection(TEXT("Content")));
		EXPECT_EQ(Menu->Sections.Num(), 1);
		EXPECT_EQ(Found.Blocks.Num(), 1);
	}

	TEST_F(ToolMenus, AddSectionWithAnExistingNameChangesTheLabelOnlyWhenOneIsGiven)
	{
		UToolMenu* const Menu = StartUserToolBar();
		Menu->AddSection(TEXT("Content"), LOCTEXT("Original", "Original"));

		Menu->AddSection(TEXT("Content"));
		EXPECT_EQ(Menu->FindSection(TEXT("Content"))->Label.Get().ToString(), TEXT("Original"));

		Menu->AddSection(TEXT("Content"), LOCTEXT("Renamed", "Renamed"));
		EXPECT_EQ(Menu->FindSection(TEXT("Content"))->Label.Get().ToString(), TEXT("Renamed"));
		EXPECT_EQ(Menu->Sections.Num(), 1);
	}

	TEST_F(ToolMenus, UnnamedSectionsAreNeverMerged)
	{
		UToolMenu* const Menu = StartUserToolBar();
		Menu->AddSection(NAME_None);
		Menu->AddSection(NAME_None);

		EXPECT_EQ(Menu->Sections.Num(), 2);
	}

	TEST_F(ToolMenus, SectionsBelongToTheOwnerCurrentWhenTheyWereAdded)
	{
		UToolMenu* const Menu = StartUserToolBar();
		{
			FToolMenuOwnerScoped Scope(&First);
			Menu->AddSection(TEXT("Owned"));
		}
		Menu->AddSection(TEXT("Unowned"));

		EXPECT_EQ(Menu->FindSection(TEXT("Owned"))->Owner, FToolMenuOwner(&First));
		EXPECT_FALSE(Menu->FindSection(TEXT("Unowned"))->Owner.IsSet());
	}

	TEST_F(ToolMenus, InitComboButtonFillsTheToolbarComboFields)
	{
		StartUserToolBar();
		bool bMenuMade = false;
		const FNewToolMenuChoice Generator(FNewToolMenuDelegate::CreateLambda([&bMenuMade](UToolMenu*)
			{ bMenuMade = true; }));
		bool bExecuted = false;
		const FUIAction Action(FExecuteAction::CreateLambda([&bExecuted]()
			{ bExecuted = true; }));
		const FSlateIcon Icon(TEXT("ProbeStyle"), TEXT("Probe.Icon"));

		FToolMenuOwnerScoped Scope(&First);
		const FToolMenuEntry Entry = FToolMenuEntry::InitComboButton(TEXT("Combo"), Action, Generator, LOCTEXT("ComboLabel", "Go Live"), LOCTEXT("ComboTip", "Start streaming"), Icon, true, TEXT("ComboHighlight"));

		EXPECT_EQ(Entry.Name, FName(TEXT("Combo")));
		EXPECT_EQ(Entry.Type, EMultiBlockType::ToolBarComboButton);
		EXPECT_EQ(Entry.Owner, FToolMenuOwner(&First));
		EXPECT_EQ(Entry.Label.Get().ToString(), TEXT("Go Live"));
		EXPECT_EQ(Entry.ToolTip.Get().ToString(), TEXT("Start streaming"));
		EXPECT_EQ(Entry.Icon.Get().GetStyleName(), FName(TEXT("Probe.Icon")));
		EXPECT_TRUE(Entry.ToolBarData.bSimpleComboBox);
		EXPECT_EQ(Entry.TutorialHighlightName, FName(TEXT("ComboHighlight")));

		const FUIAction* EntryAction = UE::Headless::GetToolMenuEntryAction(Entry);
		ASSERT_NE(EntryAction, nullptr);
		EntryAction->Execute();
		EXPECT_TRUE(bExecuted);
		Entry.ToolBarData.ComboButtonContextMenuGenerator.NewToolMenu.ExecuteIfBound(nullptr);
		EXPECT_TRUE(bMenuMade);
	}

	TEST_F(ToolMenus, InitComboButtonLeavesOverridesUnsetByDefault)
	{
		StartUserToolBar();
		const FToolMenuEntry Entry = MakeEntry(TEXT("Plain"));

		EXPECT_FALSE(Entry.Label.IsSet());
		EXPECT_FALSE(Entry.ToolTip.IsSet());
		EXPECT_FALSE(Entry.ToolBarData.bSimpleComboBox);
		EXPECT_EQ(Entry.TutorialHighlightName, NAME_None);
		EXPECT_FALSE(Entry.Owner.IsSet());
	}

	class ToolMenusDeathTest : public ToolMenus
	{
	};

	TEST_F(ToolMenusDeathTest, EndingAnOwnerScopeThatIsNotTheInnermostIsFatal)
	{
		StartSlateAndMenus();
		EXPECT_DEATH(
			{
				FToolMenuOwnerScoped* Outer = new FToolMenuOwnerScoped(&First);
				FToolMenuOwnerScoped Inner(&Second);
				delete Outer;
			},
			"Assertion failed");
	}
}

#undef LOCTEXT_NAMESPACE
