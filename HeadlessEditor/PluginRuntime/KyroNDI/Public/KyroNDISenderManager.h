#pragma once

#include "CoreMinimal.h"
#include "GameFramework/Actor.h"
#include "UObject/ObjectMacros.h"

#include "KyroNDISenderManager.generated.h"

/** Sends render targets on the network over NDI. */
UCLASS()
class KYRONDI_API AKyroNDISenderManager : public AActor
{
	GENERATED_BODY()
};
