#include "KyroVirtualWebcamOutput.h"

#include "Components/SceneComponent.h"

AKyroVirtualWebcamOutput::AKyroVirtualWebcamOutput(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, RenderTarget(nullptr)
{
	RootComponent = CreateDefaultSubobject<USceneComponent>(TEXT("Root"));
}
