#include "AssetToolsModule.h"
#include "Engine/TextureRenderTarget2D.h"
#include "IAssetTools.h"
#include "KyroCineCamCapture.h"
#include "KyroSpoutSenderManager.h"
#include "Modules/ModuleManager.h"
#include "WizardHarness.h"

#include <gtest/gtest.h>

namespace
{
	/** The names of the wizard's render-target assets. */
	TArray<FString> GetTargetNames()
	{
		TArray<FString> Names;
		for (UObject* Asset : FLevelDriver::GetAssets(TEXT("/Game/LivestreamWizard")))
		{
			Names.Add(Asset->GetName());
		}
		return Names;
	}

	FString GetSpoutSenderName(int32 Index)
	{
		return FLevelDriver::GetActorsOf<AKyroSpoutSenderManager>()[0]->Senders[Index].SenderName;
	}

	/** Whether the done page reports success for Name. */
	bool ReportsSuccess(const FWizardHarness& Harness, const FString& Name)
	{
		return Harness.IsDonePageShown() && Harness.GetDoneText()->GetText().ToString().Equals(FString(TEXT("Livestream '")) + Name + TEXT("' created!"));
	}

	/** Whether the done page reports failure and the level and content are as before. */
	void ExpectFailureWithNothingBuilt(const FWizardHarness& Harness)
	{
		EXPECT_TRUE(Harness.IsDonePageShown());
		EXPECT_TRUE(Harness.GetDoneText()->GetText().ToString().StartsWith(TEXT("ERROR: Failed to create Livestream")));
		EXPECT_TRUE(FLevelDriver::GetActors().IsEmpty());
		EXPECT_TRUE(GetTargetNames().IsEmpty());
		EXPECT_EQ(FLevelDriver::GetTransactionHistory()->GetQueueLength(), 0);
	}
}

TEST(WizardBadName, CharactersRefusedInAssetNamesBecomeUnderscoresInAssetAndSenders)
{
	FWizardHarness Harness;

	Harness.Create(TEXT("My Stream: v1.2 (live)!"), TEXT("Spout"));

	EXPECT_TRUE(ReportsSuccess(Harness, TEXT("My Stream: v1.2 (live)!")));
	EXPECT_EQ(GetTargetNames(), TArray<FString>{TEXT("My_Stream__v1_2__live__")});
	EXPECT_TRUE(GetSpoutSenderName(0).Equals(TEXT("My_Stream__v1_2__live__")));
}

TEST(WizardBadName, SurroundingBlanksBecomeUnderscores)
{
	FWizardHarness Harness;

	Harness.Create(TEXT(" Stage "), TEXT("Spout"));

	EXPECT_TRUE(ReportsSuccess(Harness, TEXT(" Stage ")));
	EXPECT_EQ(GetTargetNames(), TArray<FString>{TEXT("_Stage_")});
}

TEST(WizardBadName, TrailingNumbersCountOnWithTheirPaddingAndDigitOnlyNamesGetASuffix)
{
	FWizardHarness Harness;

	Harness.Create(TEXT("Cam05"), TEXT("NDI"));
	Harness.PressKeyOnWizard(EKeys::Enter);
	Harness.ClickRestart();
	Harness.Create(TEXT("2024"), TEXT("NDI"));

	TArray<FString> Names = GetTargetNames();
	Names.Sort();
	EXPECT_EQ(Names, (TArray<FString>{TEXT("2024_2"), TEXT("Cam05"), TEXT("Cam06")}));
}

TEST(WizardBadName, ANonLatinNameIsKeptAsTyped)
{
	FWizardHarness Harness;
	const FString Japanese = FString(TEXT("ライブ配信"));
	const FString Russian = FString(TEXT("Трансляция"));

	Harness.Create(Japanese, TEXT("Spout"));
	EXPECT_TRUE(ReportsSuccess(Harness, Japanese));
	Harness.ClickRestart();
	Harness.Create(Russian, TEXT("Spout"));

	EXPECT_TRUE(ReportsSuccess(Harness, Russian));
	EXPECT_TRUE(GetSpoutSenderName(0).Equals(Japanese));
	EXPECT_TRUE(GetSpoutSenderName(1).Equals(Russian));
	EXPECT_EQ(GetTargetNames().Num(), 2);
}

TEST(WizardBadName, AThousandCharacterNameEndsOnTheErrorPageWithNothingBuilt)
{
	// Numbered, its package name could pass the engine's name length, which stops the editor.
	FWizardHarness Harness;
	const FString Long = FString::ChrN(1000, TEXT('a'));

	Harness.Create(Long, TEXT("NDI"));

	ExpectFailureWithNothingBuilt(Harness);
	EXPECT_TRUE(Harness.GetDoneText()->GetText().ToString().Contains(Long));
}

TEST(WizardBadName, TheLongestAcceptedNameCanBeCreatedAgainWithANumber)
{
	FWizardHarness Harness;
	const FString FolderPath(TEXT("/Game/LivestreamWizard/"));
	const FString Longest = FString::ChrN(NAME_SIZE - 11 - FolderPath.Len(), TEXT('a'));
	Harness.Create(Longest, TEXT("NDI"));
	ASSERT_TRUE(ReportsSuccess(Harness, Longest));
	Harness.ClickRestart();

	Harness.Create(Longest, TEXT("NDI"));

	EXPECT_TRUE(ReportsSuccess(Harness, Longest));
	const TArray<FString> Names = GetTargetNames();
	EXPECT_EQ(Names.Num(), 2);
	EXPECT_TRUE(Names.Contains(Longest));
	EXPECT_TRUE(Names.Contains(Longest + TEXT("1")));
}

TEST(WizardBadName, ANameOneCharacterTooLongForNumberingBuildsNothing)
{
	FWizardHarness Harness;
	const FString FolderPath(TEXT("/Game/LivestreamWizard/"));

	Harness.Create(FString::ChrN(NAME_SIZE - 10 - FolderPath.Len(), TEXT('a')), TEXT("Spout"));

	ExpectFailureWithNothingBuilt(Harness);
}

TEST(WizardBadName, ANameEndingInASlashLeavesNoAssetNameAndBuildsNothing)
{
	FWizardHarness Harness;

	Harness.Create(TEXT("Stage/"), TEXT("Spout"));

	ExpectFailureWithNothingBuilt(Harness);
}

TEST(WizardBadName, ANameOfSlashesOnlyBuildsNothing)
{
	FWizardHarness Harness;

	Harness.Create(TEXT("///"), TEXT("Spout"));

	ExpectFailureWithNothingBuilt(Harness);
}

TEST(WizardBadName, AFolderInTheNameIsDroppedFromTheAsset)
{
	FWizardHarness Harness;

	Harness.Create(TEXT("Shows/Stage"), TEXT("Spout"));

	EXPECT_TRUE(ReportsSuccess(Harness, TEXT("Shows/Stage")));
	EXPECT_EQ(GetTargetNames(), TArray<FString>{TEXT("Stage")});
	EXPECT_NE(FLevelDriver::FindAsset(TEXT("/Game/LivestreamWizard/Stage.Stage")), nullptr);
	EXPECT_TRUE(GetSpoutSenderName(0).Equals(TEXT("Stage")));
}

TEST(WizardBadName, AFolderNameClashingWithAnAssetBuildsNothing)
{
	FWizardHarness Harness;
	IAssetTools& AssetTools = FModuleManager::LoadModuleChecked<FAssetToolsModule>(TEXT("AssetTools")).Get();
	ASSERT_NE(AssetTools.CreateAsset(TEXT("Stage"), TEXT("/Game/LivestreamWizard"), UTextureRenderTarget2D::StaticClass(), nullptr), nullptr);

	// The unique name is checked in the sub-folder, the asset is made in the wizard's folder: the asset tools refuse.
	Harness.Create(TEXT("Shows/Stage"), TEXT("Spout"));

	EXPECT_TRUE(Harness.GetDoneText()->GetText().ToString().StartsWith(TEXT("ERROR")));
	EXPECT_TRUE(FLevelDriver::GetActors().IsEmpty());
	EXPECT_EQ(GetTargetNames().Num(), 1);
}
