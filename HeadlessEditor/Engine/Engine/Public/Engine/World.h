#pragma once

#include "CoreMinimal.h"
#include "Engine/EngineTypes.h"
#include "UObject/Object.h"
#include "UObject/ObjectMacros.h"
#include "UObject/ObjectPtr.h"
#include "Containers/EnumAsByte.h"
#include "Templates/Casts.h"
#include "World.generated.h"

class AActor;
class APawn;
class ULevel;
class UPackage;
class UChildActorComponent;

/** Optional parameters of UWorld::SpawnActor. */
struct ENGINE_API FActorSpawnParameters
{
	FActorSpawnParameters();

	/** How the name is chosen when Name is taken. */
	enum class ESpawnActorNameMode : uint8
	{
		Required_Fatal,
		Required_ErrorAndReturnNull,
		Required_ReturnNull,
		Requested
	};

	FName Name;
	AActor* Template;
	AActor* Owner;
	APawn* Instigator;
	ULevel* OverrideLevel;
	UChildActorComponent* OverrideParentComponent;
	ESpawnActorCollisionHandlingMethod SpawnCollisionHandlingOverride;
	uint8 bNoFail : 1;
	uint8 bDeferConstruction : 1;
	ESpawnActorNameMode NameMode;
	EObjectFlags ObjectFlags;
};

/** A world: the persistent level and the actors in it. */
UCLASS(config = Engine)
class ENGINE_API UWorld : public UObject
{
	GENERATED_UCLASS_BODY()

public:
	/** The level that always exists; actors are spawned into it. */
	UPROPERTY(Transient)
	TObjectPtr<ULevel> PersistentLevel;

	TEnumAsByte<EWorldType::Type> WorldType;

	/** Creates a world with its persistent level, in InWorldPackage or in a new package. */
	static UWorld* CreateWorld(const EWorldType::Type InWorldType, bool bInformEngineOfWorld, FName WorldName = NAME_None, UPackage* InWorldPackage = nullptr, bool bAddToRoot = true);
	/** Destroys every actor and the level; the world and its objects become invalid. */
	void DestroyWorld(bool bInformEngineOfWorld, UWorld* NewWorld = nullptr);

	virtual UWorld* GetWorld() const override { return const_cast<UWorld*>(this); }
	ULevel* GetCurrentLevel() const { return PersistentLevel; }
	bool IsPlayInEditor() const { return WorldType == EWorldType::PIE; }
	bool IsEditorWorld() const { return WorldType == EWorldType::Editor || WorldType == EWorldType::EditorPreview || WorldType == EWorldType::PIE; }

	AActor* SpawnActor(UClass* InClass, FVector const* Location = nullptr, FRotator const* Rotation = nullptr, const FActorSpawnParameters& SpawnParameters = FActorSpawnParameters());

	template <class T>
	T* SpawnActor(const FActorSpawnParameters& SpawnParameters = FActorSpawnParameters())
	{
		return CastChecked<T>(SpawnActor(T::StaticClass(), nullptr, nullptr, SpawnParameters), ECastCheckedType::NullAllowed);
	}
	template <class T>
	T* SpawnActor(FVector const& Location, FRotator const& Rotation, const FActorSpawnParameters& SpawnParameters = FActorSpawnParameters())
	{
		return CastChecked<T>(SpawnActor(T::StaticClass(), &Location, &Rotation, SpawnParameters), ECastCheckedType::NullAllowed);
	}
	template <class T>
	T* SpawnActor(UClass* Class, const FActorSpawnParameters& SpawnParameters = FActorSpawnParameters())
	{
		return CastChecked<T>(SpawnActor(Class, nullptr, nullptr, SpawnParameters), ECastCheckedType::NullAllowed);
	}
	template <class T>
	T* SpawnActor(UClass* Class, FVector const& Location, FRotator const& Rotation, const FActorSpawnParameters& SpawnParameters = FActorSpawnParameters())
	{
		return CastChecked<T>(SpawnActor(Class, &Location, &Rotation, SpawnParameters), ECastCheckedType::NullAllowed);
	}

	/** Removes the actor from its level and marks it (and its components) for destruction. */
	bool DestroyActor(AActor* Actor, bool bNetForce = false, bool bShouldModifyLevel = true);
};
