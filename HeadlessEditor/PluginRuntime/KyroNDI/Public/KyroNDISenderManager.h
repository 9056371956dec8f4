#pragma once

#include "CoreMinimal.h"
#include "GameFramework/Actor.h"
#include "UObject/ObjectMacros.h"
#include "KyroNDISenderManager.generated.h"

class UTextureRenderTarget2D;

/** One NDI sender: a render target sent on the network as an NDI source. */
USTRUCT(BlueprintType)
struct KYRONDI_API FKyroNDISenderInterface
{
	GENERATED_BODY()

	/** Whether the sender sends. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "NDI")
	bool bEnabled = false;

	/** Whether the source is announced on the network. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "NDI")
	bool bActive = false;

	/** The source name while the editor or game runs. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "NDI")
	FString SenderName;

	/** The source name in a packaged (standalone) game. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "NDI")
	FString StandaloneSenderName;

	/** The texture sent. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "NDI")
	UTextureRenderTarget2D* RenderTarget = nullptr;
};

/** Sends each of its entries as an NDI source; one per level. */
UCLASS(ClassGroup = (Kyro))
class KYRONDI_API AKyroNDISenderManager : public AActor
{
	GENERATED_BODY()

public:
	AKyroNDISenderManager(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "NDI")
	TArray<FKyroNDISenderInterface> Senders;
};
