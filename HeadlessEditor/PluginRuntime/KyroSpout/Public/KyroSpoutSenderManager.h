#pragma once

#include "CoreMinimal.h"
#include "GameFramework/Actor.h"
#include "UObject/ObjectMacros.h"
#include "KyroSpoutSenderManager.generated.h"

class UTextureRenderTarget2D;

/** One Spout sender: a render target shared with other applications under a name. */
USTRUCT(BlueprintType)
struct KYROSPOUT_API FKyroSpoutSenderInterface
{
	GENERATED_BODY()

	/** Whether the sender sends. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Spout")
	bool bEnabled = false;

	/** The name receivers see while the editor or game runs. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Spout")
	FString SenderName;

	/** The name receivers see in a packaged (standalone) game. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Spout")
	FString StandaloneSenderName;

	/** The texture sent. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Spout")
	UTextureRenderTarget2D* RenderTarget = nullptr;
};

/** Sends each of its entries as a Spout sender; one per level. */
UCLASS(ClassGroup = (Kyro))
class KYROSPOUT_API AKyroSpoutSenderManager : public AActor
{
	GENERATED_BODY()

public:
	AKyroSpoutSenderManager(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Spout")
	TArray<FKyroSpoutSenderInterface> Senders;
};
