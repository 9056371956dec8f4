#include "AssetRegistry/AssetRegistryModule.h"
#include "AssetRegistry/IAssetRegistry.h"

#include "Misc/PackageName.h"
#include "Modules/ModuleManager.h"
#include "Templates/UniquePtr.h"
#include "UObject/Package.h"
#include "UObject/UObjectIterator.h"

namespace
{
	/** The registry over the objects in memory. */
	class FAssetRegistryImpl : public IAssetRegistry
	{
	public:
		virtual FAssetData GetAssetByObjectPath(const FSoftObjectPath& ObjectPath, bool bIncludeOnlyOnDiskAssets, bool bSkipARFilteredAssets) const override
		{
			if (bIncludeOnlyOnDiskAssets || !ObjectPath.IsValid())
			{
				return FAssetData();
			}
			UObject* Package = StaticFindObjectFast(UPackage::StaticClass(), nullptr, ObjectPath.GetLongPackageFName());
			UObject* Asset = Package ? StaticFindObjectFast(nullptr, Package, ObjectPath.GetAssetPath().GetAssetName()) : nullptr;
			return Asset && IsValid(Asset) && Asset->IsAsset() ? FAssetData(Asset) : FAssetData();
		}

		virtual bool GetAssetsByPath(FName PackagePath, TArray<FAssetData>& OutAssetData, bool bRecursive, bool bIncludeOnlyOnDiskAssets) const override
		{
			if (bIncludeOnlyOnDiskAssets)
			{
				return true;
			}
			const FString Path = PackagePath.ToString();
			for (TObjectIterator<UObject> It; It; ++It)
			{
				if (!IsValid(*It) || !It->IsAsset())
				{
					continue;
				}
				const FString AssetPath = FPackageName::GetLongPackagePath(It->GetOutermost()->GetName());
				const bool bInPath = AssetPath == Path || (bRecursive && AssetPath.StartsWith(Path + TEXT("/")));
				if (bInPath)
				{
					OutAssetData.Add(FAssetData(*It));
				}
			}
			return true;
		}

		virtual bool IsLoadingAssets() const override { return false; }

		virtual void AssetCreated(UObject* NewAsset) override
		{
			if (NewAsset && NewAsset->IsAsset())
			{
				InMemoryAssetCreatedEvent.Broadcast(NewAsset);
			}
		}

		virtual FInMemoryAssetCreatedEvent& OnInMemoryAssetCreated() override { return InMemoryAssetCreatedEvent; }

		virtual void AssetDeleted(UObject* DeletedAsset) override
		{
			// The registry lists what is in memory, so only its listeners need telling; callers tell it while the object is still an asset.
			if (ensure(DeletedAsset) && DeletedAsset->IsAsset())
			{
				InMemoryAssetDeletedEvent.Broadcast(DeletedAsset);
			}
		}

		virtual FInMemoryAssetDeletedEvent& OnInMemoryAssetDeleted() override { return InMemoryAssetDeletedEvent; }

	private:
		FInMemoryAssetCreatedEvent InMemoryAssetCreatedEvent;
		FInMemoryAssetDeletedEvent InMemoryAssetDeletedEvent;
	};

	TUniquePtr<FAssetRegistryImpl> GRegistry;
}

UAssetRegistry::UAssetRegistry(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
}

IAssetRegistry* IAssetRegistry::Get()
{
	return GRegistry.get();
}

IAssetRegistry& IAssetRegistry::GetChecked()
{
	checkf(GRegistry, TEXT("Asset registry not yet initialized"));
	return *GRegistry;
}

void FAssetRegistryModule::StartupModule()
{
	GRegistry = MakeUnique<FAssetRegistryImpl>();
}

void FAssetRegistryModule::ShutdownModule()
{
	GRegistry.reset();
}

IAssetRegistry& FAssetRegistryModule::Get() const
{
	return IAssetRegistry::GetChecked();
}

IMPLEMENT_MODULE(FAssetRegistryModule, AssetRegistry)
