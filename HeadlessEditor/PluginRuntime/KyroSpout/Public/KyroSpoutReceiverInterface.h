#pragma once

#include "CoreMinimal.h"
#include "Engine/TextureRenderTarget2D.h"
#include "UObject/ObjectMacros.h"
#include "UObject/ObjectPtr.h"
#include "KyroSpoutReceiverInterface.generated.h"

/** One Spout receiver: which sender it listens to and where it draws. */
USTRUCT(BlueprintType)
struct KYROSPOUT_API FKyroSpoutReceiverInterface
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Spout")
	bool Active = true;

	/** The sender to receive from. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Spout")
	FString Name;

	/** Receive from whichever sender comes first instead of the named one. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Spout")
	bool UseFirstAvailableSender = false;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Spout")
	TObjectPtr<UTextureRenderTarget2D> RenderTarget = nullptr;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Spout")
	bool bFixGamma = false;
};
