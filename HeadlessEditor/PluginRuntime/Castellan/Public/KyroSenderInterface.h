#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"
#include "KyroSenderInterface.generated.h"

class UTextureRenderTarget2D;

/** What each sender of the plugin has, Spout's and NDI's alike: a render target sent under a name. */
USTRUCT(BlueprintType)
struct CASTELLAN_API FKyroSenderInterface
{
	GENERATED_BODY()

	/** Whether the sender sends. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Sender")
	bool bEnabled = false;

	/** The name receivers see while the editor or game runs. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Sender")
	FString SenderName;

	/** The name receivers see in a packaged (standalone) game. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Sender")
	FString StandaloneSenderName;

	/** The texture sent. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Sender")
	UTextureRenderTarget2D* RenderTarget = nullptr;
};
