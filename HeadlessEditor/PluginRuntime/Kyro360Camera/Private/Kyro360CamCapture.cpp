#include "Kyro360CamCapture.h"

#include "Kyro360CaptureComponent.h"

AKyro360CamCapture::AKyro360CamCapture(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
	CaptureComponent = CreateDefaultSubobject<UKyro360CaptureComponent>(TEXT("CaptureComponent"));
	RootComponent = CaptureComponent;
}
