#include "LevelDriver.h"

#include "Editor.h"
#include "Editor/Transactor.h"
#include "Engine/Level.h"
#include "Engine/World.h"
#include "GameFramework/Actor.h"
#include "HeadlessLevelEditor.h"
#include "LevelEditorViewport.h"
#include "Misc/PackageName.h"
#include "Selection.h"
#include "UObject/Package.h"
#include "UObject/SoftObjectPath.h"
#include "UObject/UObjectIterator.h"

UWorld* FLevelDriver::GetEditorWorld()
{
	return GEditor->GetEditorWorldContext().World();
}

TArray<AActor*> FLevelDriver::GetActors()
{
	TArray<AActor*> Actors;
	for (AActor* Actor : GetEditorWorld()->PersistentLevel->Actors)
	{
		if (IsValid(Actor))
		{
			Actors.Add(Actor);
		}
	}
	return Actors;
}

TArray<AActor*> FLevelDriver::GetSelectedActors()
{
	TArray<AActor*> Actors;
	GEditor->GetSelectedActors()->GetSelectedObjects(Actors);
	return Actors;
}

TArray<UObject*> FLevelDriver::GetSelectedObjects()
{
	TArray<UObject*> Objects;
	GEditor->GetSelectedObjects()->GetSelectedObjects(Objects);
	return Objects;
}

FLevelEditorViewportClient* FLevelDriver::GetLevelViewportClient(int32 Index)
{
	return GEditor->GetLevelViewportClients()[Index];
}

void FLevelDriver::SetActiveLevelViewport(int32 Index)
{
	UE::Headless::SetActiveViewport(Index == INDEX_NONE ? nullptr : GetLevelViewportClient(Index)->Viewport);
}

TArray<UObject*> FLevelDriver::GetAssets(const FString& Path)
{
	TArray<UObject*> Assets;
	for (TObjectIterator<UObject> It; It; ++It)
	{
		if (IsValid(*It) && It->IsAsset())
		{
			const FString PackagePath = FPackageName::GetLongPackagePath(It->GetOutermost()->GetName());
			if (PackagePath == Path || PackagePath.StartsWith(Path + TEXT("/")))
			{
				Assets.Add(*It);
			}
		}
	}
	return Assets;
}

UObject* FLevelDriver::FindAsset(const FString& ObjectPath)
{
	const FSoftObjectPath Path(ObjectPath);
	UObject* Package = StaticFindObjectFast(UPackage::StaticClass(), nullptr, Path.GetLongPackageFName());
	UObject* Asset = Package ? StaticFindObjectFast(nullptr, Package, Path.GetAssetPath().GetAssetName()) : nullptr;
	return IsValid(Asset) ? Asset : nullptr;
}

bool FLevelDriver::IsPackageDirty(const UObject* Object)
{
	const UPackage* Package = Object ? Object->GetOutermost() : nullptr;
	return Package && Package->IsDirty();
}

UTransactor* FLevelDriver::GetTransactionHistory()
{
	return GEditor->Trans;
}

const FTransaction* FLevelDriver::GetLastTransaction()
{
	UTransactor* History = GetTransactionHistory();
	return History->GetTransaction(History->GetQueueLength() - History->GetUndoCount() - 1);
}

bool FLevelDriver::Undo()
{
	return GEditor->UndoTransaction();
}
