#include "AssetRegistry/IAssetRegistry.h"
#include "AssetToolsModule.h"
#include "Editor.h"
#include "Engine/TextureRenderTarget2D.h"
#include "HeadlessEditorSession.h"
#include "IAssetTools.h"
#include "ObjectTools.h"
#include "Selection.h"
#include "UObject/Package.h"
#include "UObject/SoftObjectPath.h"
#include "UObject/WeakObjectPtrTemplates.h"

#include <gtest/gtest.h>

namespace
{
	UObject* MakeTarget(const FString& Name)
	{
		return FAssetToolsModule::GetModule().Get().CreateAsset(Name, TEXT("/Game/Stage"), UTextureRenderTarget2D::StaticClass(), nullptr);
	}

	bool IsRegistered(const TCHAR* ObjectPath)
	{
		return IAssetRegistry::GetChecked().GetAssetByObjectPath(FSoftObjectPath(ObjectPath)).IsValid();
	}
}

TEST(ObjectTools, ADeletedAssetIsAnnouncedWhileStillAnAssetThenGoesWithItsPackage)
{
	FHeadlessEditorSession Session;
	UObject* Asset = MakeTarget(TEXT("Feed"));
	ASSERT_NE(Asset, nullptr);
	const TWeakObjectPtr<UObject> WeakAsset(Asset);
	const TWeakObjectPtr<UPackage> WeakPackage(Asset->GetOutermost());
	TArray<bool> AnnouncedAsAsset;
	const FDelegateHandle Handle = IAssetRegistry::GetChecked().OnInMemoryAssetDeleted().AddLambda([&AnnouncedAsAsset](UObject* Deleted)
		{ AnnouncedAsAsset.Add(Deleted->IsAsset()); });

	EXPECT_EQ(ObjectTools::DeleteObjectsUnchecked({Asset}), 1);
	IAssetRegistry::GetChecked().OnInMemoryAssetDeleted().Remove(Handle);

	EXPECT_EQ(AnnouncedAsAsset, TArray<bool>{true});
	EXPECT_FALSE(IsRegistered(TEXT("/Game/Stage/Feed.Feed")));
	EXPECT_FALSE(WeakAsset.IsValid());
	EXPECT_FALSE(WeakPackage.IsValid());
}

TEST(ObjectTools, TheNameIsFreeAgainAndOtherAssetsStay)
{
	FHeadlessEditorSession Session;
	UObject* Kept = MakeTarget(TEXT("Kept"));
	UObject* Feed = MakeTarget(TEXT("Feed"));
	ASSERT_NE(Kept, nullptr);
	ASSERT_NE(Feed, nullptr);

	ASSERT_EQ(ObjectTools::DeleteObjectsUnchecked({Feed}), 1);

	// Created again without the asset tools asking to replace an existing object.
	EXPECT_NE(MakeTarget(TEXT("Feed")), nullptr);
	EXPECT_TRUE(IsRegistered(TEXT("/Game/Stage/Kept.Kept")));
	EXPECT_TRUE(Kept->GetOutermost()->IsDirty());
}

TEST(ObjectTools, ADeletedObjectLeavesTheSelectionAndNullEntriesAreSkipped)
{
	FHeadlessEditorSession Session;
	UObject* Asset = MakeTarget(TEXT("Feed"));
	ASSERT_NE(Asset, nullptr);
	GEditor->GetSelectedObjects()->Select(Asset);

	EXPECT_EQ(ObjectTools::DeleteObjectsUnchecked({nullptr, Asset}), 1);

	EXPECT_EQ(GEditor->GetSelectedObjects()->Num(), 0);
}
