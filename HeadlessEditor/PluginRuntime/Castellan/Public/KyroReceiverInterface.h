#pragma once

#include "CoreMinimal.h"
#include "Engine/TextureRenderTarget2D.h"
#include "UObject/ObjectMacros.h"
#include "UObject/ObjectPtr.h"
#include "KyroReceiverInterface.generated.h"

/** What each receiver of the plugin has, Spout's and NDI's alike: the sender it listens to and where it draws. */
USTRUCT(BlueprintType)
struct CASTELLAN_API FKyroReceiverInterface
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Receiver")
	bool Active = true;

	/** The sender to receive from. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Receiver")
	FString Name;

	/** Receive from whichever sender comes first instead of the named one. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Receiver")
	bool UseFirstAvailableSender = false;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Receiver")
	TObjectPtr<UTextureRenderTarget2D> RenderTarget = nullptr;
};
