#include "HeadlessContentBrowser.h"

#include "ContentBrowser/NewAssetContextMenu.h"
#include "Factories/Factory.h"
#include "UObject/Class.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UObjectIterator.h"

TArray<UFactory*> UE::Headless::GetNewAssetFactories()
{
	TArray<UFactory*> Factories;
	for (TObjectIterator<UClass> It; It; ++It)
	{
		UClass* Class = *It;
		if (Class->IsChildOf(UFactory::StaticClass()) && !Class->HasAnyClassFlags(CLASS_Abstract))
		{
			UFactory* Factory = Class->GetDefaultObject<UFactory>();
			if (Factory->ShouldShowInNewMenu())
			{
				Factories.Add(Factory);
			}
		}
	}
	Factories.StableSort([](const UFactory& A, const UFactory& B)
		{ return A.GetDisplayName().ToString().Compare(B.GetDisplayName().ToString(), ESearchCase::IgnoreCase) < 0; });
	return Factories;
}

UE::Headless::FNewAssetResult UE::Headless::CreateNewAsset(const UFactory& FactoryDefault, const FString& AssetName, const FString& PackagePath)
{
	FNewAssetResult Result;
	UFactory* Factory = NewObject<UFactory>(GetTransientPackage(), FactoryDefault.GetClass());
	if (!Factory->ConfigureProperties())
	{
		return Result;
	}
	UPackage* Package = CreatePackage(*(PackagePath + TEXT("/") + AssetName));
	const EObjectFlags Flags = EObjectFlags(RF_Public | RF_Standalone | RF_Transactional);
	Result.Asset = Factory->FactoryCreateNew(Factory->GetSupportedClass(), Package, FName(*AssetName), Flags, nullptr, nullptr);
	if (Result.Asset)
	{
		Result.Asset->MarkPackageDirty();
		Result.bEditorOpened = Factory->bEditAfterNew;
	}
	return Result;
}

TSharedRef<SWidget> UE::Headless::MakeNewAssetMenuEntry(UFactory& Factory)
{
	return SNew(SFactoryMenuEntry, &Factory);
}

TSharedRef<SWidget> UE::Headless::MakeNewAssetCategoryMenu(uint32 AssetTypeCategory)
{
	return FNewAssetContextMenu::MakeCategoryMenu(AssetTypeCategory);
}
