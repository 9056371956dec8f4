#include "KyroCaptureComponent.h"

UKyroCaptureComponent::UKyroCaptureComponent(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
}
