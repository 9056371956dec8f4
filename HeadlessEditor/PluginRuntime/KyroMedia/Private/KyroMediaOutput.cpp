#include "KyroMediaOutput.h"

#include "Components/SceneComponent.h"

AKyroMediaOutput::AKyroMediaOutput(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, RenderTarget(nullptr)
{
	RootComponent = CreateDefaultSubobject<USceneComponent>(TEXT("Root"));
}
