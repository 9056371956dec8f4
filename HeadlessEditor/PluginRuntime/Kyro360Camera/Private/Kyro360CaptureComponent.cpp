#include "Kyro360CaptureComponent.h"

UKyro360CaptureComponent::UKyro360CaptureComponent(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
}
