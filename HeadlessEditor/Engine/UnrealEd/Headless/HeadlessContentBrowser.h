#pragma once

#include "CoreMinimal.h"

class SWidget;
class UFactory;
class UObject;

/** Headless editor only: the content browser's "new asset" menu and what choosing an entry does. */
namespace UE::Headless
{
	/** The factory defaults the new-asset menu lists: every concrete factory class that shows in it. */
	UNREALED_API TArray<UFactory*> GetNewAssetFactories();

	/** The result of making an asset through a factory. */
	struct FNewAssetResult
	{
		UObject* Asset = nullptr;
		/** Whether the editor would have opened the asset's editor afterwards. */
		bool bEditorOpened = false;
	};

	/**
	 * Makes an asset named AssetName in the folder PackagePath (e.g. "/Game/Audio") with a fresh
	 * instance of the factory's class, as the content browser does: a new package, the public,
	 * standalone and transactional flags, the package marked dirty.
	 */
	UNREALED_API FNewAssetResult CreateNewAsset(const UFactory& FactoryDefault, const FString& AssetName, const FString& PackagePath);

	/** The factory's entry in the new-asset menu as the content browser draws it: its class's thumbnail and its name. */
	UNREALED_API TSharedRef<SWidget> MakeNewAssetMenuEntry(UFactory& Factory);

	/**
	 * The sub-menu of a group of the "Add" menu (EAssetTypeCategories bits, such as Misc for
	 * "Miscellaneous", where factories go whose class has no asset type of its own), as it opens:
	 * an entry per factory of the group, by name. Draw it in UE::Headless::MakeMenuWindow.
	 */
	UNREALED_API TSharedRef<SWidget> MakeNewAssetCategoryMenu(uint32 AssetTypeCategory);
}
