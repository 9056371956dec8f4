#pragma once

#include "CoreMinimal.h"
#include "Engine/TextureRenderTarget2D.h"
#include "KyroNDISoundWave.h"
#include "UObject/ObjectMacros.h"
#include "UObject/ObjectPtr.h"
#include "KyroNDIReceiverInterface.generated.h"

/** One NDI receiver: which source it listens to, where it draws and where its sound goes. */
USTRUCT(BlueprintType)
struct KYRONDI_API FKyroNDIReceiverInterface
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "NDI")
	bool Active = true;

	/** The source to receive from. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "NDI")
	FString Name;

	/** Receive from whichever source comes first instead of the named one. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "NDI")
	bool UseFirstAvailableSender = false;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "NDI")
	TObjectPtr<UTextureRenderTarget2D> RenderTarget = nullptr;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "NDI")
	TObjectPtr<UKyroNDISoundWave> NDISoundWave = nullptr;
};
