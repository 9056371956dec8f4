#pragma once

#include "CoreMinimal.h"
#include "KyroNDISoundWave.h"
#include "KyroReceiverInterface.h"
#include "UObject/ObjectMacros.h"
#include "UObject/ObjectPtr.h"
#include "KyroNDIReceiverInterface.generated.h"

/** One NDI receiver: which source it listens to, where it draws and where its sound goes. */
USTRUCT(BlueprintType)
struct KYRONDI_API FKyroNDIReceiverInterface : public FKyroReceiverInterface
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "NDI")
	TObjectPtr<UKyroNDISoundWave> NDISoundWave = nullptr;
};
