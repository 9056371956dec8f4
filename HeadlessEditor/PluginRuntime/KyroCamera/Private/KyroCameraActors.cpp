#include "KyroCaptureComponent.h"
#include "KyroCineCamCapture.h"
#include "KyroViewportCapture.h"

#include "Components/SceneComponent.h"

UKyroCaptureComponent::UKyroCaptureComponent(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
}

AKyroCineCamCapture::AKyroCineCamCapture(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
	CaptureComponent = CreateDefaultSubobject<UKyroCaptureComponent>(TEXT("CaptureComponent"));
	RootComponent = CaptureComponent;
}

AKyroViewportCapture::AKyroViewportCapture(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, RenderTarget(nullptr)
{
	RootComponent = CreateDefaultSubobject<USceneComponent>(TEXT("Root"));
}
