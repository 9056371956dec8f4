#include "ScreenCaptureHelpers.h"

#include "HeadlessScreenCaptureSources.h"

namespace
{
	struct FScreenCaptureSources
	{
		TArray<FKyroMonitorInfo> Monitors;
		TArray<FKyroWindowInfo> Windows;
	};

	FScreenCaptureSources& Sources()
	{
		static FScreenCaptureSources State;
		return State;
	}
}

TArray<FKyroMonitorInfo> FScreenCaptureHelpers::GetMonitors()
{
	return Sources().Monitors;
}

TArray<FKyroWindowInfo> FScreenCaptureHelpers::GetWindows()
{
	return Sources().Windows;
}

void UE::Headless::SetScreenCaptureMonitors(TArray<FKyroMonitorInfo> Monitors)
{
	Sources().Monitors = MoveTemp(Monitors);
}

void UE::Headless::SetScreenCaptureWindows(TArray<FKyroWindowInfo> Windows)
{
	Sources().Windows = MoveTemp(Windows);
}
