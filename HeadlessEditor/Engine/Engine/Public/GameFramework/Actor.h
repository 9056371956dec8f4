#pragma once

#include "CoreMinimal.h"
#include "Engine/EngineTypes.h"
#include "UObject/Object.h"
#include "UObject/ObjectMacros.h"
#include "UObject/ObjectPtr.h"
#include "Actor.generated.h"

class ULevel;
class USceneComponent;
class UWorld;
struct FHitResult;

ENGINE_API DECLARE_LOG_CATEGORY_EXTERN(LogActor, Log, Warning);

/** An object that can be placed in a level. */
UCLASS(BlueprintType, Blueprintable, config = Engine, meta = (ShortTooltip = "An Actor is an object that can be placed or spawned in the world."))
class ENGINE_API AActor : public UObject
{
	GENERATED_BODY()

public:
	AActor();
	AActor(const FObjectInitializer& ObjectInitializer);

	/** The location of the root component, or zero without one. */
	FVector GetActorLocation() const;
	FRotator GetActorRotation() const;
	bool SetActorLocation(const FVector& NewLocation, bool bSweep = false, FHitResult* OutSweepHitResult = nullptr, ETeleportType Teleport = ETeleportType::None);
	bool SetActorRotation(FRotator NewRotation, ETeleportType Teleport = ETeleportType::None);
	bool SetActorRotation(const FQuat& NewRotation, ETeleportType Teleport = ETeleportType::None);

	USceneComponent* GetRootComponent() const { return RootComponent; }
	bool SetRootComponent(USceneComponent* NewRootComponent);

	virtual bool Modify(bool bAlwaysMarkDirty = true) override;
	virtual UWorld* GetWorld() const override final;
	/** The level this actor was spawned in (its outer). */
	ULevel* GetLevel() const;

	/** Removes the actor from its world; it becomes invalid and weak pointers to it go stale. */
	bool Destroy(bool bNetForce = false, bool bShouldModifyLevel = true);
	bool IsPendingKillPending() const { return bActorIsBeingDestroyed || !IsValid(this); }

	/** The name the editor shows for the actor: its label if set, otherwise its object name. */
	FString GetActorLabel(bool bCreateIfNone = true) const;
	void SetActorLabel(const FString& NewActorLabel, bool bMarkDirty = true);

protected:
	/** The component that defines the actor's transform. */
	UPROPERTY(BlueprintGetter = K2_GetRootComponent, Category = "Utilities|Transformation")
	TObjectPtr<USceneComponent> RootComponent;

private:
	UPROPERTY()
	FString ActorLabel;

	bool bActorIsBeingDestroyed = false;

	friend class UWorld;
};
