#pragma once

#include "CoreMinimal.h"
#include "GameFramework/Actor.h"
#include "KyroSpoutReceiverInterface.h"
#include "UObject/ObjectMacros.h"
#include "KyroSpoutReceiverManager.generated.h"

/** Receives a Spout sender's frames into a render target. */
UCLASS(BlueprintType)
class KYROSPOUT_API AKyroSpoutReceiverManager : public AActor
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Spout")
	FKyroSpoutReceiverInterface Receiver;
};
