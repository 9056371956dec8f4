#include "GameFramework/SaveGame.h"
#include "HeadlessSaveGames.h"
#include "HeadlessEditorEngine.h"
#include "Kismet/GameplayStatics.h"
#include "KyroSaveGame.h"
#include "PlatformFeatures.h"
#include "SaveGameSystem.h"
#include "Templates/Casts.h"
#include "UObject/Package.h"

#include <gtest/gtest.h>

namespace
{
	class SaveGame : public ::testing::Test
	{
	protected:
		virtual void SetUp() override
		{
			UE::Headless::ClearSaveGames();
			UE::Headless::CreateEditorEngine();
		}
		virtual void TearDown() override
		{
			UE::Headless::DestroyEditorEngine();
			UE::Headless::SetSaveGameSystemAvailable(true);
			UE::Headless::ClearSaveGames();
		}

		static UKyroSaveGame* MakeRecord(const FString& Version, bool bSkip)
		{
			UKyroSaveGame* Record = Cast<UKyroSaveGame>(UGameplayStatics::CreateSaveGameObject(UKyroSaveGame::StaticClass()));
			Record->Version = Version;
			Record->bSkipVersion = bSkip;
			return Record;
		}
	};
}

TEST_F(SaveGame, OnlyConcreteSaveGameClassesAreCreated)
{
	UKyroSaveGame* Record = Cast<UKyroSaveGame>(UGameplayStatics::CreateSaveGameObject(UKyroSaveGame::StaticClass()));
	ASSERT_NE(Record, nullptr);
	EXPECT_EQ(Record->GetOutermost(), GetTransientPackage());
	EXPECT_EQ(UGameplayStatics::CreateSaveGameObject(USaveGame::StaticClass()), nullptr);
	EXPECT_EQ(UGameplayStatics::CreateSaveGameObject(nullptr), nullptr);
}

TEST_F(SaveGame, LoadingMakesAFreshObjectOfTheSavedClassWithTheSavedValues)
{
	UKyroSaveGame* Saved = MakeRecord(TEXT("2.1 \"beta\"\nnext"), true);
	ASSERT_TRUE(UGameplayStatics::SaveGameToSlot(Saved, TEXT("Settings"), 0));
	EXPECT_TRUE(UGameplayStatics::DoesSaveGameExist(TEXT("Settings"), 0));

	USaveGame* Loaded = UGameplayStatics::LoadGameFromSlot(TEXT("Settings"), 0);
	ASSERT_NE(Loaded, nullptr);
	EXPECT_NE(Loaded, Saved);
	EXPECT_EQ(Loaded->GetClass(), UKyroSaveGame::StaticClass());
	const UKyroSaveGame* Record = Cast<UKyroSaveGame>(Loaded);
	EXPECT_TRUE(Record->Version.Equals(TEXT("2.1 \"beta\"\nnext")));
	EXPECT_TRUE(Record->bSkipVersion);

	// Saving again replaces the slot's content.
	ASSERT_TRUE(UGameplayStatics::SaveGameToSlot(MakeRecord(TEXT("3.0"), false), TEXT("Settings"), 0));
	const UKyroSaveGame* Replaced = Cast<UKyroSaveGame>(UGameplayStatics::LoadGameFromSlot(TEXT("Settings"), 0));
	ASSERT_NE(Replaced, nullptr);
	EXPECT_TRUE(Replaced->Version.Equals(TEXT("3.0")));
	EXPECT_FALSE(Replaced->bSkipVersion);
}

TEST_F(SaveGame, SlotsOutliveTheEditorSessionThatWroteThem)
{
	ASSERT_TRUE(UGameplayStatics::SaveGameToSlot(MakeRecord(TEXT("1.4"), true), TEXT("Settings"), 0));
	UE::Headless::DestroyEditorEngine();
	UE::Headless::CreateEditorEngine();
	EXPECT_TRUE(UGameplayStatics::DoesSaveGameExist(TEXT("Settings"), 0));
	const UKyroSaveGame* Record = Cast<UKyroSaveGame>(UGameplayStatics::LoadGameFromSlot(TEXT("Settings"), 0));
	ASSERT_NE(Record, nullptr);
	EXPECT_TRUE(Record->Version.Equals(TEXT("1.4")));
}

TEST_F(SaveGame, DesktopSlotsAreFilesNamedAfterTheSlotWhateverTheUserIndex)
{
	// The engine's generic save system writes SaveGames/<Slot>.sav and ignores the user index;
	// the editor runs on Windows, whose file names ignore case.
	ASSERT_TRUE(UGameplayStatics::SaveGameToSlot(MakeRecord(TEXT("1.0"), false), TEXT("Settings"), 0));
	EXPECT_TRUE(UGameplayStatics::DoesSaveGameExist(TEXT("Settings"), 3));
	EXPECT_TRUE(UGameplayStatics::DoesSaveGameExist(TEXT("SETTINGS"), 0));
	ASSERT_TRUE(UGameplayStatics::SaveGameToSlot(MakeRecord(TEXT("2.0"), false), TEXT("settings"), 1));
	const UKyroSaveGame* Record = Cast<UKyroSaveGame>(UGameplayStatics::LoadGameFromSlot(TEXT("Settings"), 0));
	ASSERT_NE(Record, nullptr);
	EXPECT_TRUE(Record->Version.Equals(TEXT("2.0")));
	EXPECT_FALSE(UGameplayStatics::DoesSaveGameExist(TEXT("Other"), 0));

	ISaveGameSystem* System = IPlatformFeaturesModule::Get().GetSaveGameSystem();
	ASSERT_NE(System, nullptr);
	EXPECT_TRUE(System->DeleteGame(false, TEXT("Settings"), 7));
	EXPECT_FALSE(UGameplayStatics::DoesSaveGameExist(TEXT("Settings"), 0));
}

TEST_F(SaveGame, EmptySlotNamesAndMissingObjectsAreRefused)
{
	EXPECT_FALSE(UGameplayStatics::SaveGameToSlot(MakeRecord(TEXT("1.0"), false), TEXT(""), 0));
	EXPECT_FALSE(UGameplayStatics::SaveGameToSlot(nullptr, TEXT("Settings"), 0));
	EXPECT_FALSE(UGameplayStatics::DoesSaveGameExist(TEXT("Settings"), 0));
	EXPECT_EQ(UGameplayStatics::LoadGameFromSlot(TEXT(""), 0), nullptr);
	EXPECT_EQ(UGameplayStatics::LoadGameFromSlot(TEXT("Missing"), 0), nullptr);
}

TEST_F(SaveGame, WithoutASaveSystemNothingIsSavedOrFound)
{
	ASSERT_TRUE(UGameplayStatics::SaveGameToSlot(MakeRecord(TEXT("1.0"), false), TEXT("Settings"), 0));
	UE::Headless::SetSaveGameSystemAvailable(false);
	EXPECT_EQ(IPlatformFeaturesModule::Get().GetSaveGameSystem(), nullptr);
	EXPECT_FALSE(UGameplayStatics::SaveGameToSlot(MakeRecord(TEXT("2.0"), false), TEXT("Settings"), 0));
	EXPECT_FALSE(UGameplayStatics::DoesSaveGameExist(TEXT("Settings"), 0));
	EXPECT_EQ(UGameplayStatics::LoadGameFromSlot(TEXT("Settings"), 0), nullptr);
}
