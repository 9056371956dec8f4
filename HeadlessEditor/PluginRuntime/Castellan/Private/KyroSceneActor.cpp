#include "KyroSceneActor.h"

#include "Components/SceneComponent.h"

AKyroSceneActor::AKyroSceneActor(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
	RootComponent = CreateDefaultSubobject<USceneComponent>(TEXT("Root"));
}
