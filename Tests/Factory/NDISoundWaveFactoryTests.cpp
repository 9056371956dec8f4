#include "Factories/KyroNDISoundWaveFactory.h"
#include "HeadlessContentBrowser.h"
#include "HeadlessEditorSession.h"
#include "KyroNDISoundWave.h"
#include "Internationalization/Internationalization.h"
#include "UObject/Class.h"
#include "UObject/Package.h"

#include <gtest/gtest.h>

namespace
{
	UFactory* FindNewAssetFactory(const FString& DisplayName)
	{
		for (UFactory* Factory : UE::Headless::GetNewAssetFactories())
		{
			if (Factory->GetDisplayName().ToString().Equals(DisplayName))
			{
				return Factory;
			}
		}
		return nullptr;
	}
}

TEST(NDISoundWaveFactory, IsTheModulesReflectedFactoryClass)
{
	FHeadlessEditorSession Session;
	const UClass* Class = UKyroNDISoundWaveFactory::StaticClass();

	EXPECT_TRUE(Class->GetName().Equals(TEXT("KyroNDISoundWaveFactory")));
	EXPECT_TRUE(Class->GetOutermost()->GetName().Equals(TEXT("/Script/CastellanEditor")));
	EXPECT_EQ(Class->GetSuperClass(), UFactory::StaticClass());

	const UKyroNDISoundWaveFactory* Defaults = GetDefault<UKyroNDISoundWaveFactory>();
	EXPECT_EQ(Defaults->GetSupportedClass(), UKyroNDISoundWave::StaticClass());
	EXPECT_TRUE(Defaults->CanCreateNew());
	EXPECT_FALSE(Defaults->bEditAfterNew);
	EXPECT_TRUE(FTextInspector::GetNamespace(Defaults->GetDisplayName()).Get(TEXT("")).Equals(TEXT("KyroNDISoundWaveFactory")));
	EXPECT_TRUE(FTextInspector::GetKey(Defaults->GetDisplayName()).Get(TEXT("")).Equals(TEXT("KyroNDISoundWaveFactoryDisplayName")));
}

TEST(NDISoundWaveFactory, ContentBrowserListsItOnce)
{
	FHeadlessEditorSession Session;
	int32 Listed = 0;
	for (UFactory* Factory : UE::Headless::GetNewAssetFactories())
	{
		Listed += Factory->GetDisplayName().ToString().Equals(TEXT("Kyro NDI Sound Wave")) ? 1 : 0;
	}
	EXPECT_EQ(Listed, 1);
}

TEST(NDISoundWaveFactory, CreatesANamedSoundWaveInTheChosenFolderWithoutOpeningAnEditor)
{
	FHeadlessEditorSession Session;
	UFactory* Factory = FindNewAssetFactory(TEXT("Kyro NDI Sound Wave"));
	ASSERT_NE(Factory, nullptr);

	const UE::Headless::FNewAssetResult Result = UE::Headless::CreateNewAsset(*Factory, TEXT("StudioFeed"), TEXT("/Game/Audio/NDI"));

	ASSERT_NE(Result.Asset, nullptr);
	EXPECT_EQ(Result.Asset->GetClass(), UKyroNDISoundWave::StaticClass());
	EXPECT_TRUE(Result.Asset->GetName().Equals(TEXT("StudioFeed")));
	EXPECT_TRUE(Result.Asset->GetOutermost()->GetName().Equals(TEXT("/Game/Audio/NDI/StudioFeed")));
	EXPECT_TRUE(Result.Asset->HasAllFlags(EObjectFlags(RF_Public | RF_Standalone | RF_Transactional)));
	EXPECT_TRUE(Result.Asset->GetOutermost()->IsDirty());
	EXPECT_FALSE(Result.bEditorOpened);
}

TEST(NDISoundWaveFactory, FactoryCreateNewUsesTheGivenOuterNameAndFlagsOnly)
{
	FHeadlessEditorSession Session;
	UKyroNDISoundWaveFactory* Factory = NewObject<UKyroNDISoundWaveFactory>(GetTransientPackage());
	UPackage* Package = CreatePackage(TEXT("/Game/Direct/Wave"));

	// The requested class is ignored: the factory always makes its own.
	UObject* Created = Factory->FactoryCreateNew(UPackage::StaticClass(), Package, TEXT("Wave"), RF_Public, nullptr, nullptr);

	ASSERT_NE(Created, nullptr);
	EXPECT_TRUE(Created->IsA(UKyroNDISoundWave::StaticClass()));
	EXPECT_EQ(Created->GetOuter(), Package);
	EXPECT_TRUE(Created->HasAnyFlags(RF_Public));
	EXPECT_FALSE(Created->HasAnyFlags(RF_Standalone));
}
