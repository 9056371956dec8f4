#include "KyroCGCaptureComponent.h"

UKyroCGCaptureComponent::UKyroCGCaptureComponent(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
}
