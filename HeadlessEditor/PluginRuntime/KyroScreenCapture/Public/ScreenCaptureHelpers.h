#pragma once

#include "CoreMinimal.h"

/** A monitor attached to this machine. */
struct FKyroMonitorInfo
{
	FString Name;
};

/** A top-level window open on this machine. */
struct FKyroWindowInfo
{
	FString Name;
};

/** Lists what a screen capture can record. */
class KYROSCREENCAPTURE_API FScreenCaptureHelpers
{
public:
	static TArray<FKyroMonitorInfo> GetMonitors();
	static TArray<FKyroWindowInfo> GetWindows();
};
