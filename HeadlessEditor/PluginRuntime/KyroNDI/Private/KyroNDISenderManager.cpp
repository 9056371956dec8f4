#include "KyroNDISenderManager.h"

#include "Components/SceneComponent.h"

AKyroNDISenderManager::AKyroNDISenderManager(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
	RootComponent = CreateDefaultSubobject<USceneComponent>(TEXT("Root"));
}
