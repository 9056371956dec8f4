#include "Engine/World.h"

#include "CoreGlobals.h"
#include "Engine/Level.h"
#include "GameFramework/Actor.h"
#include "HeadlessWorld.h"
#include "UObject/Package.h"
#include "UObject/UObjectIterator.h"

DEFINE_LOG_CATEGORY_STATIC(LogSpawn, Warning, All);

namespace
{
	/** The class whose spawns every world refuses, if any. */
	struct FSpawnRefusal
	{
		UClass* Class = nullptr;
	};

	FSpawnRefusal& GetSpawnRefusal()
	{
		static FSpawnRefusal State;
		return State;
	}
}

void UE::Headless::SetRefusedSpawnClass(UClass* Class)
{
	GetSpawnRefusal().Class = Class;
}

FSimpleMulticastDelegate ULevel::LevelDirtiedEvent;

FActorSpawnParameters::FActorSpawnParameters()
	: Name(NAME_None)
	, Template(nullptr)
	, Owner(nullptr)
	, Instigator(nullptr)
	, OverrideLevel(nullptr)
	, OverrideParentComponent(nullptr)
	, SpawnCollisionHandlingOverride(ESpawnActorCollisionHandlingMethod::Undefined)
	, bNoFail(false)
	, bDeferConstruction(false)
	, NameMode(ESpawnActorNameMode::Required_Fatal)
	, ObjectFlags(RF_Transactional)
{
}

ULevel::ULevel(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
}

UWorld* ULevel::GetWorld() const
{
	return OwningWorld;
}

UWorld::UWorld(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, WorldType(EWorldType::None)
{
}

UWorld* UWorld::CreateWorld(const EWorldType::Type InWorldType, bool bInformEngineOfWorld, FName WorldName, UPackage* InWorldPackage, bool bAddToRoot)
{
	UPackage* Package = InWorldPackage ? InWorldPackage : CreatePackage(nullptr);
	if (WorldName.IsNone())
	{
		const FString PackageName = Package->GetName();
		int32 Slash = INDEX_NONE;
		WorldName = FName(*(PackageName.FindLastChar(TEXT('/'), Slash) ? PackageName.RightChop(Slash + 1) : PackageName));
	}
	UWorld* World = NewObject<UWorld>(Package, WorldName, RF_Public | RF_Standalone | RF_Transactional);
	World->WorldType = InWorldType;
	World->PersistentLevel = NewObject<ULevel>(World, TEXT("PersistentLevel"), RF_Transactional);
	World->PersistentLevel->OwningWorld = World;
	if (bAddToRoot)
	{
		World->AddToRoot();
	}
	return World;
}

void UWorld::DestroyWorld(bool bInformEngineOfWorld, UWorld* NewWorld)
{
	if (PersistentLevel)
	{
		for (AActor* Actor : TArray<TObjectPtr<AActor>>(PersistentLevel->Actors))
		{
			DestroyActor(Actor, false, false);
		}
	}
	for (TObjectIterator<UObject> It; It; ++It)
	{
		if (It->IsIn(this))
		{
			It->MarkAsGarbage();
		}
	}
	RemoveFromRoot();
	MarkAsGarbage();
}

AActor* UWorld::SpawnActor(UClass* Class, FVector const* Location, FRotator const* Rotation, const FActorSpawnParameters& SpawnParameters)
{
	if (!Class)
	{
		UE_LOG(LogSpawn, Warning, TEXT("SpawnActor failed because no class was specified"));
		return nullptr;
	}
	if (!Class->IsChildOf(AActor::StaticClass()))
	{
		UE_LOG(LogSpawn, Warning, TEXT("SpawnActor failed because %s is not an actor class"), *Class->GetName());
		return nullptr;
	}
	if (Class->HasAnyClassFlags(CLASS_Abstract))
	{
		UE_LOG(LogSpawn, Warning, TEXT("SpawnActor failed because class %s is abstract"), *Class->GetName());
		return nullptr;
	}
	if (GetSpawnRefusal().Class && Class->IsChildOf(GetSpawnRefusal().Class))
	{
		UE_LOG(LogSpawn, Warning, TEXT("SpawnActor failed because the world refused an actor of class %s"), *Class->GetName());
		return nullptr;
	}
	ULevel* LevelToSpawnIn = SpawnParameters.OverrideLevel ? SpawnParameters.OverrideLevel : PersistentLevel.Get();
	FName NewActorName = SpawnParameters.Name;
	if (NewActorName.IsNone())
	{
		NewActorName = MakeUniqueObjectName(LevelToSpawnIn, Class);
	}
	else if (StaticFindObjectFast(nullptr, LevelToSpawnIn, NewActorName))
	{
		switch (SpawnParameters.NameMode)
		{
			case FActorSpawnParameters::ESpawnActorNameMode::Requested:
				NewActorName = MakeUniqueObjectName(LevelToSpawnIn, Class, NewActorName);
				break;
			case FActorSpawnParameters::ESpawnActorNameMode::Required_Fatal:
				checkf(false, TEXT("Cannot generate unique name for '%s' in level '%s'."), *NewActorName.ToString(), *LevelToSpawnIn->GetFullName());
				return nullptr;
			default:
				UE_LOG(LogSpawn, Error, TEXT("Cannot generate unique name for '%s' in level '%s'."), *NewActorName.ToString(), *LevelToSpawnIn->GetFullName());
				return nullptr;
		}
	}
	if (GUndo)
	{
		LevelToSpawnIn->Modify();
	}
	AActor* Actor = NewObject<AActor>(LevelToSpawnIn, Class, NewActorName, SpawnParameters.ObjectFlags, SpawnParameters.Template);
	LevelToSpawnIn->Actors.Add(Actor);
	if (Location)
	{
		Actor->SetActorLocation(*Location);
	}
	if (Rotation)
	{
		Actor->SetActorRotation(*Rotation);
	}
	return Actor;
}

bool UWorld::DestroyActor(AActor* ThisActor, bool bNetForce, bool bShouldModifyLevel)
{
	check(ThisActor);
	if (ThisActor->bActorIsBeingDestroyed || !IsValid(ThisActor))
	{
		return true;
	}
	ULevel* Level = ThisActor->GetLevel();
	checkf(Level && Level->OwningWorld == this, TEXT("Actor %s is not in world %s"), *ThisActor->GetName(), *GetName());
	ThisActor->bActorIsBeingDestroyed = true;
	if (bShouldModifyLevel)
	{
		ThisActor->Modify();
		Level->Modify();
	}
	Level->Actors.Remove(ThisActor);
	// The actor and its components become invalid now; memory goes at the next garbage collection.
	for (TObjectIterator<UObject> It; It; ++It)
	{
		if (It->IsIn(ThisActor))
		{
			It->MarkAsGarbage();
		}
	}
	ThisActor->MarkAsGarbage();
	return true;
}
