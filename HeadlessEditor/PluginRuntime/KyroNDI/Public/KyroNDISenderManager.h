#pragma once

#include "CoreMinimal.h"
#include "KyroSceneActor.h"
#include "KyroSenderInterface.h"
#include "UObject/ObjectMacros.h"
#include "KyroNDISenderManager.generated.h"

/** One NDI sender: a render target sent on the network as an NDI source. */
USTRUCT(BlueprintType)
struct KYRONDI_API FKyroNDISenderInterface : public FKyroSenderInterface
{
	GENERATED_BODY()

	/** Whether the source is announced on the network. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "NDI")
	bool bActive = false;
};

/** Sends each of its entries as an NDI source; one per level. */
UCLASS(ClassGroup = (Kyro))
class KYRONDI_API AKyroNDISenderManager : public AKyroSceneActor
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "NDI")
	TArray<FKyroNDISenderInterface> Senders;
};
