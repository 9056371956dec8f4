#pragma once

#include "CoreMinimal.h"
#include "ScreenCaptureHelpers.h"

/** The monitors and windows of the headless machine: those the instruments attach and open. */
namespace UE::Headless
{
	/** The monitors FScreenCaptureHelpers::GetMonitors reports from now on. */
	KYROSCREENCAPTURE_API void SetScreenCaptureMonitors(TArray<FKyroMonitorInfo> Monitors);

	/** The windows FScreenCaptureHelpers::GetWindows reports from now on. */
	KYROSCREENCAPTURE_API void SetScreenCaptureWindows(TArray<FKyroWindowInfo> Windows);
}
