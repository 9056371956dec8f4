#pragma once

#include "CoreMinimal.h"
#include "GameFramework/Actor.h"
#include "UObject/ObjectMacros.h"

#include "KyroSpoutSenderManager.generated.h"

/** Sends render targets to other applications over Spout. */
UCLASS()
class KYROSPOUT_API AKyroSpoutSenderManager : public AActor
{
	GENERATED_BODY()
};
