#pragma once

#include "CoreMinimal.h"
#include "Components/ActorComponent.h"
#include "Engine/EngineTypes.h"
#include "SceneComponent.generated.h"

struct FHitResult;

/**
 * A component with a transform. The headless editor keeps no attachment hierarchy, so a
 * component's world transform is its relative transform.
 */
UCLASS(ClassGroup = (Utility, Common), BlueprintType, meta = (BlueprintSpawnableComponent))
class ENGINE_API USceneComponent : public UActorComponent
{
	GENERATED_BODY()

public:
	USceneComponent(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	FVector GetRelativeLocation() const { return RelativeLocation; }
	FRotator GetRelativeRotation() const { return RelativeRotation; }
	FVector GetRelativeScale3D() const { return RelativeScale3D; }
	void SetRelativeLocation(FVector NewLocation, bool bSweep = false, FHitResult* OutSweepHitResult = nullptr, ETeleportType Teleport = ETeleportType::None);
	void SetRelativeRotation(FRotator NewRotation, bool bSweep = false, FHitResult* OutSweepHitResult = nullptr, ETeleportType Teleport = ETeleportType::None);
	void SetWorldLocation(FVector NewLocation, bool bSweep = false, FHitResult* OutSweepHitResult = nullptr, ETeleportType Teleport = ETeleportType::None);
	void SetWorldRotation(FRotator NewRotation, bool bSweep = false, FHitResult* OutSweepHitResult = nullptr, ETeleportType Teleport = ETeleportType::None);
	FVector GetComponentLocation() const { return RelativeLocation; }
	FRotator GetComponentRotation() const { return RelativeRotation; }

private:
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = Transform, meta = (AllowPrivateAccess = "true"))
	FVector RelativeLocation;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = Transform, meta = (AllowPrivateAccess = "true"))
	FRotator RelativeRotation;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = Transform, meta = (AllowPrivateAccess = "true"))
	FVector RelativeScale3D;
};
