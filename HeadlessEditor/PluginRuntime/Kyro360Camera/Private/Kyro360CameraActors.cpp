#include "Kyro360CamCapture.h"
#include "Kyro360CaptureComponent.h"

UKyro360CaptureComponent::UKyro360CaptureComponent(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
}

AKyro360CamCapture::AKyro360CamCapture(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
	CaptureComponent = CreateDefaultSubobject<UKyro360CaptureComponent>(TEXT("CaptureComponent"));
	RootComponent = CaptureComponent;
}
