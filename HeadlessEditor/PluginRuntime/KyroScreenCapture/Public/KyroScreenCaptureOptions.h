#pragma once

#include "CoreMinimal.h"
#include "Engine/TextureRenderTarget2D.h"
#include "UObject/ObjectMacros.h"
#include "UObject/ObjectPtr.h"
#include "KyroScreenCaptureOptions.generated.h"

/** What a screen capture records. */
UENUM(BlueprintType)
enum class EKyroScreenCaptureType : uint8
{
	Monitor = 0,
	Window = 1,
};

/** The options of a screen capture: its source and its render target. */
USTRUCT(BlueprintType)
struct KYROSCREENCAPTURE_API FKyroScreenCaptureOptions
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Screen Capture")
	bool Active = true;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Screen Capture")
	TObjectPtr<UTextureRenderTarget2D> RenderTarget = nullptr;

	/** Hides the render target rows when the capture makes its own. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Screen Capture")
	bool bHideRenderTarget = false;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Screen Capture")
	EKyroScreenCaptureType ScreenCaptureType = EKyroScreenCaptureType::Monitor;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Screen Capture")
	FString MonitorName;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Screen Capture")
	FString WindowName;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Screen Capture")
	bool CaptureCursor = true;
};
