#pragma once

#include "CoreMinimal.h"
#include "GameFramework/Actor.h"
#include "KyroNDIReceiverInterface.h"
#include "UObject/ObjectMacros.h"
#include "KyroNDIReceiverManager.generated.h"

/** Receives an NDI source's frames into a render target. */
UCLASS(BlueprintType)
class KYRONDI_API AKyroNDIReceiverManager : public AActor
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "NDI")
	FKyroNDIReceiverInterface Receiver;
};
