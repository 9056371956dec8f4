#include "ObjectTools.h"

#include "AssetRegistry/AssetRegistryModule.h"
#include "Editor.h"
#include "Selection.h"
#include "UObject/Object.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UObjectIterator.h"

namespace
{
	/** As the engine deletes one object: out of the selection, dirty, announced, and no longer an asset. */
	void DeleteSingleObject(UObject* ObjectToDelete)
	{
		if (GEditor)
		{
			GEditor->GetSelectedObjects()->Deselect(ObjectToDelete);
		}
		ObjectToDelete->MarkPackageDirty();
		// Announced while it is still an asset, as the engine does, so that listeners see it as one.
		FAssetRegistryModule::AssetDeleted(ObjectToDelete);
		ObjectToDelete->ClearFlags(RF_Standalone | RF_Public);
	}

	/**
	 * The engine's clean-up after a delete, for packages that exist only in memory (the headless
	 * editor has no files): the package is no longer dirty, and it is unloaded with everything in
	 * it. The engine's garbage collector then frees what nothing references any more; the headless
	 * one cannot follow references, so it frees the whole package. Callers delete what nothing uses.
	 */
	void UnloadPackages(const TArray<UPackage*>& Packages)
	{
		if (GEditor)
		{
			GEditor->GetSelectedObjects()->DeselectAll();
		}
		for (UPackage* Package : Packages)
		{
			Package->SetDirtyFlag(false);
			for (TObjectIterator<UObject> It; It; ++It)
			{
				if (It->IsIn(Package))
				{
					It->MarkAsGarbage();
				}
			}
			Package->MarkAsGarbage();
		}
		// The editor keeps standalone objects through a collection.
		CollectGarbage(RF_Standalone);
	}
}

int32 ObjectTools::DeleteObjectsUnchecked(const TArray<UObject*>& ObjectsToDelete)
{
	// The engine also asks its delegates and the source control, and closes asset editors; the
	// headless editor has none of them.
	TArray<UPackage*> Packages;
	int32 NumDeleted = 0;
	for (UObject* ObjectToDelete : ObjectsToDelete)
	{
		if (!ensure(ObjectToDelete != nullptr))
		{
			continue;
		}
		DeleteSingleObject(ObjectToDelete);
		if (UPackage* Package = ObjectToDelete->GetOutermost())
		{
			Packages.AddUnique(Package);
		}
		++NumDeleted;
	}
	if (NumDeleted > 0)
	{
		UnloadPackages(Packages);
	}
	return NumDeleted;
}
