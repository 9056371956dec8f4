#pragma once

#include "CoreMinimal.h"
#include "KyroSceneActor.h"
#include "KyroSenderInterface.h"
#include "UObject/ObjectMacros.h"
#include "KyroSpoutSenderManager.generated.h"

/** One Spout sender: a render target shared with other applications under a name. */
USTRUCT(BlueprintType)
struct KYROSPOUT_API FKyroSpoutSenderInterface : public FKyroSenderInterface
{
	GENERATED_BODY()
};

/** Sends each of its entries as a Spout sender; one per level. */
UCLASS(ClassGroup = (Kyro))
class KYROSPOUT_API AKyroSpoutSenderManager : public AKyroSceneActor
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Spout")
	TArray<FKyroSpoutSenderInterface> Senders;
};
