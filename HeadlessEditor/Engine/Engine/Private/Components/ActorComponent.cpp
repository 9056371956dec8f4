#include "Components/ActorComponent.h"

#include "Components/SceneComponent.h"
#include "GameFramework/Actor.h"

UActorComponent::UActorComponent(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, bAutoActivate(false)
{
}

AActor* UActorComponent::GetOwner() const
{
	return GetTypedOuter<AActor>();
}

UWorld* UActorComponent::GetWorld() const
{
	AActor* Owner = GetOwner();
	return Owner ? Owner->GetWorld() : nullptr;
}

bool UActorComponent::Modify(bool bAlwaysMarkDirty)
{
	return UObject::Modify(bAlwaysMarkDirty);
}

USceneComponent::USceneComponent(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, RelativeLocation(FVector::ZeroVector)
	, RelativeRotation(0, 0, 0)
	, RelativeScale3D(FVector::OneVector)
{
}

void USceneComponent::SetRelativeLocation(FVector NewLocation, bool bSweep, FHitResult* OutSweepHitResult, ETeleportType Teleport)
{
	RelativeLocation = NewLocation;
}

void USceneComponent::SetRelativeRotation(FRotator NewRotation, bool bSweep, FHitResult* OutSweepHitResult, ETeleportType Teleport)
{
	RelativeRotation = NewRotation;
}

void USceneComponent::SetWorldLocation(FVector NewLocation, bool bSweep, FHitResult* OutSweepHitResult, ETeleportType Teleport)
{
	SetRelativeLocation(NewLocation, bSweep, OutSweepHitResult, Teleport);
}

void USceneComponent::SetWorldRotation(FRotator NewRotation, bool bSweep, FHitResult* OutSweepHitResult, ETeleportType Teleport)
{
	SetRelativeRotation(NewRotation, bSweep, OutSweepHitResult, Teleport);
}
