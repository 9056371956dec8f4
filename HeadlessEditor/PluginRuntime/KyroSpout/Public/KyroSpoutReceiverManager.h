#pragma once

#include "CoreMinimal.h"
#include "GameFramework/Actor.h"
#include "UObject/ObjectMacros.h"

#include "KyroSpoutReceiverManager.generated.h"

/** Receives Spout senders of other applications. */
UCLASS()
class KYROSPOUT_API AKyroSpoutReceiverManager : public AActor
{
	GENERATED_BODY()
};
