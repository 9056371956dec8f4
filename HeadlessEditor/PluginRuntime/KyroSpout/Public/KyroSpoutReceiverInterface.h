#pragma once

#include "CoreMinimal.h"
#include "KyroReceiverInterface.h"
#include "UObject/ObjectMacros.h"
#include "KyroSpoutReceiverInterface.generated.h"

/** One Spout receiver: which sender it listens to and where it draws. */
USTRUCT(BlueprintType)
struct KYROSPOUT_API FKyroSpoutReceiverInterface : public FKyroReceiverInterface
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Spout")
	bool bFixGamma = false;
};
