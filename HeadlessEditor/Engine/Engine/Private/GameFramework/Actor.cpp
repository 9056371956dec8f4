#include "GameFramework/Actor.h"

#include "Components/SceneComponent.h"
#include "Engine/Level.h"
#include "Engine/World.h"

DEFINE_LOG_CATEGORY(LogActor);

AActor::AActor() = default;

AActor::AActor(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
}

FVector AActor::GetActorLocation() const
{
	return RootComponent ? RootComponent->GetComponentLocation() : FVector::ZeroVector;
}

FRotator AActor::GetActorRotation() const
{
	return RootComponent ? RootComponent->GetComponentRotation() : FRotator(0, 0, 0);
}

bool AActor::SetActorLocation(const FVector& NewLocation, bool bSweep, FHitResult* OutSweepHitResult, ETeleportType Teleport)
{
	if (RootComponent)
	{
		RootComponent->SetWorldLocation(NewLocation, bSweep, OutSweepHitResult, Teleport);
		return true;
	}
	return false;
}

bool AActor::SetActorRotation(FRotator NewRotation, ETeleportType Teleport)
{
	if (RootComponent)
	{
		RootComponent->SetWorldRotation(NewRotation, false, nullptr, Teleport);
		return true;
	}
	return false;
}

bool AActor::SetActorRotation(const FQuat& NewRotation, ETeleportType Teleport)
{
	checkf(false, TEXT("SetActorRotation from a quaternion is not available in the headless editor"));
	return false;
}

bool AActor::SetRootComponent(USceneComponent* NewRootComponent)
{
	if (NewRootComponent == nullptr || NewRootComponent->GetOwner() == this)
	{
		RootComponent = NewRootComponent;
		return true;
	}
	return false;
}

bool AActor::Modify(bool bAlwaysMarkDirty)
{
	if (!CanModify())
	{
		return false;
	}
	return UObject::Modify(bAlwaysMarkDirty);
}

UWorld* AActor::GetWorld() const
{
	if (!HasAnyFlags(RF_ClassDefaultObject) && GetOuter())
	{
		if (ULevel* Level = GetLevel())
		{
			return Level->OwningWorld;
		}
	}
	return nullptr;
}

ULevel* AActor::GetLevel() const
{
	return GetTypedOuter<ULevel>();
}

bool AActor::Destroy(bool bNetForce, bool bShouldModifyLevel)
{
	if (bActorIsBeingDestroyed || !IsValid(this))
	{
		return true;
	}
	UWorld* World = GetWorld();
	if (World)
	{
		return World->DestroyActor(this, bNetForce, bShouldModifyLevel);
	}
	UE_LOG(LogActor, Warning, TEXT("Destroy called on actor %s, which is not in a world"), *GetName());
	return false;
}

FString AActor::GetActorLabel(bool bCreateIfNone) const
{
	return ActorLabel.IsEmpty() ? GetName() : ActorLabel;
}

void AActor::SetActorLabel(const FString& NewActorLabel, bool bMarkDirty)
{
	if (!NewActorLabel.Equals(GetActorLabel()))
	{
		Modify(bMarkDirty);
		ActorLabel = NewActorLabel;
	}
}
