#pragma once

#include "CoreMinimal.h"
#include "GameFramework/Actor.h"
#include "UObject/ObjectMacros.h"

#include "KyroNDIReceiverManager.generated.h"

/** Receives NDI sources from the network. */
UCLASS()
class KYRONDI_API AKyroNDIReceiverManager : public AActor
{
	GENERATED_BODY()
};
