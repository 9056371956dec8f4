#include "ScreenCaptureHelpers.h"

#include "KyroScreenCaptureRuntimeState.h"

FKyroScreenCaptureRuntimeState& FKyroScreenCaptureRuntimeState::Get()
{
	static FKyroScreenCaptureRuntimeState State;
	return State;
}

TArray<FKyroMonitorInfo> FScreenCaptureHelpers::GetMonitors()
{
	return FKyroScreenCaptureRuntimeState::Get().Monitors;
}

TArray<FKyroWindowInfo> FScreenCaptureHelpers::GetWindows()
{
	return FKyroScreenCaptureRuntimeState::Get().Windows;
}
