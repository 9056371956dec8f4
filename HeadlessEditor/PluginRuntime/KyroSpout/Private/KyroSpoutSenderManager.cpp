#include "KyroSpoutSenderManager.h"

#include "Components/SceneComponent.h"

AKyroSpoutSenderManager::AKyroSpoutSenderManager(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
	RootComponent = CreateDefaultSubobject<USceneComponent>(TEXT("Root"));
}
