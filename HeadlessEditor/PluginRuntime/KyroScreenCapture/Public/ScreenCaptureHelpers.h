#pragma once

#include "CoreMinimal.h"

/** A monitor attached to this machine. */
struct FKyroMonitorInfo
{
	FString Name;
	int32 Width = 0;
	int32 Height = 0;
};

/** A top-level window open on this machine. */
struct FKyroWindowInfo
{
	FString Name;
	uint64 Handle = 0;
};

/** Lists what a screen capture can record. */
class KYROSCREENCAPTURE_API FScreenCaptureHelpers
{
public:
	static TArray<FKyroMonitorInfo> GetMonitors();
	static TArray<FKyroWindowInfo> GetWindows();
};
