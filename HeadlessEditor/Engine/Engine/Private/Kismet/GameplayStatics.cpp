#include "Kismet/GameplayStatics.h"

#include "Engine/Engine.h"
#include "Engine/Level.h"
#include "Engine/World.h"
#include "GameFramework/Actor.h"

UBlueprintFunctionLibrary::UBlueprintFunctionLibrary(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
}

UGameplayStatics::UGameplayStatics(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
}

void UGameplayStatics::GetAllActorsOfClass(const UObject* WorldContextObject, TSubclassOf<AActor> ActorClass, TArray<AActor*>& OutActors)
{
	OutActors.Reset();
	UWorld* World = WorldContextObject ? WorldContextObject->GetWorld() : nullptr;
	if (ActorClass && World && World->PersistentLevel)
	{
		for (AActor* Actor : World->PersistentLevel->Actors)
		{
			if (IsValid(Actor) && !Actor->IsPendingKillPending() && Actor->IsA(ActorClass))
			{
				OutActors.Add(Actor);
			}
		}
	}
}
