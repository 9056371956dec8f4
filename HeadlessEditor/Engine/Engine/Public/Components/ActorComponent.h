#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "UObject/ObjectMacros.h"
#include "ActorComponent.generated.h"

class AActor;
class UWorld;

/** A reusable piece of behaviour an actor holds. */
UCLASS(DefaultToInstanced, BlueprintType, abstract)
class ENGINE_API UActorComponent : public UObject
{
	GENERATED_BODY()

public:
	UActorComponent(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	/** The actor this component belongs to (its outer actor). */
	AActor* GetOwner() const;
	virtual UWorld* GetWorld() const override final;
	virtual bool Modify(bool bAlwaysMarkDirty = true) override;
	bool IsCreatedByConstructionScript() const { return false; }

	/** Whether the component ticks; kept for the details panel, nothing ticks in the headless editor. */
	UPROPERTY(EditDefaultsOnly, BlueprintReadOnly, Category = "ComponentTick")
	bool bAutoActivate;
};
