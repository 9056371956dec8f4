#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "UObject/ObjectMacros.h"
#include "UObject/ObjectPtr.h"
#include "Level.generated.h"

class AActor;
class UWorld;

/** A set of actors in a world; the persistent level holds the actors of an editor map. */
UCLASS(MinimalAPI)
class ULevel : public UObject
{
	GENERATED_BODY()

public:
	ENGINE_API ULevel(const FObjectInitializer& ObjectInitializer);

	/** The level's actors in spawn order; destroyed actors are removed. */
	TArray<TObjectPtr<AActor>> Actors;

	/** The world that holds this level. */
	UPROPERTY(Transient)
	TObjectPtr<UWorld> OwningWorld;

	virtual UWorld* GetWorld() const override;

	/** Broadcast by the editor when a level changes in a way the level editor should show. */
	ENGINE_API static FSimpleMulticastDelegate LevelDirtiedEvent;
};
