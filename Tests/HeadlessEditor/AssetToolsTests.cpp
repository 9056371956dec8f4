#include "AssetRegistry/AssetRegistryModule.h"
#include "AssetRegistry/IAssetRegistry.h"
#include "AssetToolsModule.h"
#include "Engine/TextureRenderTarget2D.h"
#include "Factories/KyroNDISoundWaveFactory.h"
#include "HeadlessDesktop.h"
#include "HeadlessEditorSession.h"
#include "IAssetTools.h"
#include "KyroNDISoundWave.h"
#include "Logging/LogVerbosity.h"
#include "Misc/OutputDevice.h"
#include "Misc/PackageName.h"
#include "Misc/OutputDeviceRedirector.h"
#include "Modules/ModuleManager.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

#include <gtest/gtest.h>

namespace
{
	/** Counts the ensures the asset tools raise when they refuse a request. */
	class FEnsureCounter : public FOutputDevice
	{
	public:
		FEnsureCounter() { GLog->AddOutputDevice(this); }
		virtual ~FEnsureCounter() override { GLog->RemoveOutputDevice(this); }

		virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category) override
		{
			if (FString(V).Contains(TEXT("Ensure condition failed")))
			{
				++Count;
			}
		}

		int32 Count = 0;
	};

	class AssetTools : public ::testing::Test
	{
	protected:
		IAssetTools& Tools() { return FAssetToolsModule::GetModule().Get(); }

		UObject* MakeTarget(const FString& Name, const FString& Path = TEXT("/Game/Stage"))
		{
			return Tools().CreateAsset(Name, Path, UTextureRenderTarget2D::StaticClass(), nullptr);
		}

		/** The asset name CreateUniqueAssetName picks for BasePackageName (+ Suffix). */
		FString UniqueName(const FString& BasePackageName, const FString& Suffix = FString())
		{
			FString PackageName;
			FString AssetName;
			Tools().CreateUniqueAssetName(BasePackageName, Suffix, PackageName, AssetName);
			EXPECT_TRUE(PackageName.Equals(FPackageName::GetLongPackagePath(PackageName) + TEXT("/") + AssetName)) << *PackageName;
			return AssetName;
		}

		FHeadlessEditorSession Session;
	};
}

TEST_F(AssetTools, FreeNamesAreKeptAsTheyAre)
{
	FString PackageName;
	FString AssetName;
	Tools().CreateUniqueAssetName(TEXT("/Game/Stage/Feed"), TEXT(""), PackageName, AssetName);
	EXPECT_TRUE(PackageName.Equals(TEXT("/Game/Stage/Feed")));
	EXPECT_TRUE(AssetName.Equals(TEXT("Feed")));

	// A trailing number that is free is kept, leading zeros included.
	EXPECT_TRUE(UniqueName(TEXT("/Game/Stage/Feed7")).Equals(TEXT("Feed7")));
	EXPECT_TRUE(UniqueName(TEXT("/Game/Stage/Feed007")).Equals(TEXT("Feed007")));
	// The suffix joins the name before numbering.
	EXPECT_TRUE(UniqueName(TEXT("/Game/Stage/Feed"), TEXT("_RT")).Equals(TEXT("Feed_RT")));
}

TEST_F(AssetTools, TakenNamesCountOnFromTheirTrailingNumber)
{
	ASSERT_NE(MakeTarget(TEXT("Feed")), nullptr);
	// The engine starts a bare name at 1, not 2.
	EXPECT_TRUE(UniqueName(TEXT("/Game/Stage/Feed")).Equals(TEXT("Feed1")));

	ASSERT_NE(MakeTarget(TEXT("Feed1")), nullptr);
	ASSERT_NE(MakeTarget(TEXT("Feed2")), nullptr);
	EXPECT_TRUE(UniqueName(TEXT("/Game/Stage/Feed")).Equals(TEXT("Feed3")));
	EXPECT_TRUE(UniqueName(TEXT("/Game/Stage/Feed1")).Equals(TEXT("Feed3")));

	// Counting keeps the width of the trailing number, and grows past it when needed.
	ASSERT_NE(MakeTarget(TEXT("Cam009")), nullptr);
	EXPECT_TRUE(UniqueName(TEXT("/Game/Stage/Cam009")).Equals(TEXT("Cam010")));
	ASSERT_NE(MakeTarget(TEXT("Cam9")), nullptr);
	EXPECT_TRUE(UniqueName(TEXT("/Game/Stage/Cam9")).Equals(TEXT("Cam10")));
	ASSERT_NE(MakeTarget(TEXT("Cam0")), nullptr);
	EXPECT_TRUE(UniqueName(TEXT("/Game/Stage/Cam0")).Equals(TEXT("Cam1")));
}

TEST_F(AssetTools, AllDigitNamesAlwaysGetAnUnderscoreNumber)
{
	// Even a free all-digit name is not returned as it is.
	EXPECT_TRUE(UniqueName(TEXT("/Game/Stage/2024")).Equals(TEXT("2024_2")));
	ASSERT_NE(MakeTarget(TEXT("2024_2")), nullptr);
	EXPECT_TRUE(UniqueName(TEXT("/Game/Stage/2024")).Equals(TEXT("2024_3")));
}

TEST_F(AssetTools, OnlyAssetsInTheSameFolderTakeAName)
{
	ASSERT_NE(MakeTarget(TEXT("Feed"), TEXT("/Game/Other")), nullptr);
	EXPECT_TRUE(UniqueName(TEXT("/Game/Stage/Feed")).Equals(TEXT("Feed")));

	// A package that holds no asset of that name does not take it.
	CreatePackage(TEXT("/Game/Stage/Empty"));
	EXPECT_TRUE(UniqueName(TEXT("/Game/Stage/Empty")).Equals(TEXT("Empty")));
}

TEST_F(AssetTools, InvalidCharactersBecomeUnderscores)
{
	FString PackageName;
	FString AssetName;
	Tools().CreateUniqueAssetName(TEXT("/Game/My Stage//Main Feed.1"), TEXT(""), PackageName, AssetName);
	// Spaces and dots are invalid in package names; doubled slashes collapse into one.
	EXPECT_TRUE(AssetName.Equals(TEXT("Main_Feed_1"))) << *AssetName;
	EXPECT_TRUE(PackageName.Equals(TEXT("/Game/My_Stage/Main_Feed_1"))) << *PackageName;

	// Characters valid in a package name but not in an object name are replaced too.
	EXPECT_TRUE(UniqueName(TEXT("/Game/Stage/Feed(A)"), TEXT("")).Equals(TEXT("Feed_A_")));
	EXPECT_TRUE(UniqueName(TEXT("/Game/Stage/Feed"), TEXT("[B]")).Equals(TEXT("Feed_B_")));
	EXPECT_TRUE(UniqueName(TEXT("/Game/Stage/A=B;C")).Equals(TEXT("A_B_C")));
}

TEST_F(AssetTools, CreatedAssetsArePublicStandaloneTransactionalAndDirtyTheirPackage)
{
	UObject* Asset = MakeTarget(TEXT("Feed"));
	ASSERT_NE(Asset, nullptr);
	EXPECT_EQ(Asset->GetClass(), UTextureRenderTarget2D::StaticClass());
	EXPECT_TRUE(Asset->GetName().Equals(TEXT("Feed")));
	EXPECT_TRUE(Asset->HasAnyFlags(RF_Public));
	EXPECT_TRUE(Asset->HasAnyFlags(RF_Standalone));
	EXPECT_TRUE(Asset->HasAnyFlags(RF_Transactional));
	EXPECT_FALSE(Asset->HasAnyFlags(RF_Transient));

	UPackage* Package = Asset->GetOutermost();
	EXPECT_TRUE(Package->GetName().Equals(TEXT("/Game/Stage/Feed")));
	EXPECT_TRUE(Package->IsDirty());
	EXPECT_TRUE(Asset->GetPathName().Equals(TEXT("/Game/Stage/Feed.Feed")));

	const FAssetData Found = IAssetRegistry::GetChecked().GetAssetByObjectPath(FSoftObjectPath(TEXT("/Game/Stage/Feed.Feed")));
	EXPECT_TRUE(Found.IsValid());
	EXPECT_FALSE(IAssetRegistry::GetChecked().GetAssetByObjectPath(FSoftObjectPath(TEXT("/Game/Stage/Feed.Feed")), true).IsValid());
}

TEST_F(AssetTools, CreatingAnAssetTellsTheRegistry)
{
	TArray<UObject*> Announced;
	const FDelegateHandle Handle = IAssetRegistry::GetChecked().OnInMemoryAssetCreated().AddLambda([&Announced](UObject* Asset)
		{ Announced.Add(Asset); });

	UObject* Asset = MakeTarget(TEXT("Feed"));
	ASSERT_EQ(Announced.Num(), 1);
	EXPECT_EQ(Announced[0], Asset);

	// A refused creation announces nothing.
	EXPECT_EQ(MakeTarget(TEXT("Feed")), nullptr);
	EXPECT_EQ(Announced.Num(), 1);
	IAssetRegistry::GetChecked().OnInMemoryAssetCreated().Remove(Handle);
}

TEST_F(AssetTools, CreationIsRefusedForInvalidOrTakenNames)
{
	UObject* Existing = MakeTarget(TEXT("Feed"));
	ASSERT_NE(Existing, nullptr);
	Existing->GetOutermost()->SetDirtyFlag(false);

	// The existing asset is neither replaced nor touched.
	EXPECT_EQ(MakeTarget(TEXT("Feed")), nullptr);
	EXPECT_EQ(StaticFindObject(UObject::StaticClass(), Existing->GetOutermost(), TEXT("Feed")), Existing);
	EXPECT_FALSE(Existing->GetOutermost()->IsDirty());

	EXPECT_EQ(MakeTarget(TEXT("Main Feed")), nullptr);
	EXPECT_EQ(MakeTarget(TEXT("Feed.1")), nullptr);
	EXPECT_EQ(MakeTarget(TEXT("")), nullptr);
	// The package path must be a long package name under a mounted root.
	EXPECT_EQ(MakeTarget(TEXT("Feed"), TEXT("Stage")), nullptr);
	EXPECT_EQ(MakeTarget(TEXT("Feed"), TEXT("/NotMounted/Stage")), nullptr);
}

TEST_F(AssetTools, EachRefusalIsShownInTheEnginesMessageBox)
{
	ASSERT_NE(MakeTarget(TEXT("Feed")), nullptr);
	EXPECT_TRUE(UE::Headless::GetShownMessageDialogs().IsEmpty());

	EXPECT_EQ(MakeTarget(TEXT("Feed")), nullptr);
	EXPECT_EQ(MakeTarget(TEXT("")), nullptr);
	EXPECT_EQ(MakeTarget(TEXT("Feed.1")), nullptr);
	EXPECT_EQ(MakeTarget(TEXT("Feed"), TEXT("/NotMounted/Stage")), nullptr);

	const TArray<UE::Headless::FShownMessageDialog>& Dialogs = UE::Headless::GetShownMessageDialogs();
	ASSERT_EQ(Dialogs.Num(), 4);
	// Replacing is asked; the unattended answer, No, keeps the existing asset.
	EXPECT_EQ(Dialogs[0].MessageType, EAppMsgType::YesNo);
	EXPECT_TRUE(Dialogs[0].Message.ToString().StartsWith(TEXT("An object [Feed] of class [TextureRenderTarget2D] already exists in file [/Game/Stage/Feed].  Do you want to replace the existing object?")));
	EXPECT_EQ(Dialogs[1].MessageType, EAppMsgType::Ok);
	EXPECT_TRUE(Dialogs[1].Message.ToString().Equals(TEXT("Input '/Game/Stage/' ends with a '/', which is invalid for LongPackageNames.")));
	EXPECT_TRUE(Dialogs[2].Message.ToString().Equals(TEXT("Name may not contain the following characters: .")));
	EXPECT_TRUE(Dialogs[3].Message.ToString().Equals(TEXT("Path does not start with a valid root. Path must begin with: '/Engine/', '/Game/', or '/Temp/'")));
}

TEST_F(AssetTools, AFactoryMakesTheAssetOfItsSupportedClass)
{
	UKyroNDISoundWaveFactory* Factory = NewObject<UKyroNDISoundWaveFactory>();
	UObject* Asset = Tools().CreateAsset(TEXT("Wave"), TEXT("/Game/Audio"), nullptr, Factory);
	ASSERT_NE(Asset, nullptr);
	EXPECT_EQ(Asset->GetClass(), UKyroNDISoundWave::StaticClass());
	EXPECT_TRUE(Asset->GetPathName().Equals(TEXT("/Game/Audio/Wave.Wave")));
	EXPECT_TRUE(Asset->HasAnyFlags(RF_Public));
	EXPECT_TRUE(Asset->GetOutermost()->IsDirty());
}

TEST_F(AssetTools, NeitherClassNorFactoryOrAMismatchIsRefusedWithAnEnsure)
{
	FEnsureCounter Ensures;
	EXPECT_EQ(Tools().CreateAsset(TEXT("Nothing"), TEXT("/Game/Stage"), nullptr, nullptr), nullptr);
	EXPECT_EQ(Ensures.Count, 1);

	UKyroNDISoundWaveFactory* Factory = NewObject<UKyroNDISoundWaveFactory>();
	EXPECT_EQ(Tools().CreateAsset(TEXT("Wrong"), TEXT("/Game/Stage"), UTextureRenderTarget2D::StaticClass(), Factory), nullptr);
	EXPECT_EQ(Ensures.Count, 2);
	EXPECT_EQ(StaticFindObject(UObject::StaticClass(), nullptr, TEXT("/Game/Stage/Wrong.Wrong")), nullptr);
}
