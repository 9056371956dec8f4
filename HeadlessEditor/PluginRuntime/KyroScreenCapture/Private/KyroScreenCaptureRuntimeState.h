#pragma once

#include "CoreMinimal.h"
#include "ScreenCaptureHelpers.h"

/** The monitors and windows the stand-in reports; tests set them through HeadlessEditor/Testing. */
struct FKyroScreenCaptureRuntimeState
{
	TArray<FKyroMonitorInfo> Monitors;
	TArray<FKyroWindowInfo> Windows;

	static KYROSCREENCAPTURE_API FKyroScreenCaptureRuntimeState& Get();
};
