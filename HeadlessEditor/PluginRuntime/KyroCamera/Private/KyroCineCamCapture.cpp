#include "KyroCineCamCapture.h"

#include "KyroCaptureComponent.h"

AKyroCineCamCapture::AKyroCineCamCapture(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
	CaptureComponent = CreateDefaultSubobject<UKyroCaptureComponent>(TEXT("CaptureComponent"));
	RootComponent = CaptureComponent;
}
