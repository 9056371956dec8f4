#include "SourceListControls.h"

#include "KyroNDIRuntimeState.h"
#include "KyroScreenCaptureRuntimeState.h"
#include "KyroSpoutRuntimeState.h"

void HeadlessSourceLists::SetSpoutSenderNames(const TArray<FString>& Names)
{
	FKyroSpoutRuntimeState::Get().ActiveSenderNames = Names;
}

void HeadlessSourceLists::SetNDISourceNames(const TArray<FString>& Names)
{
	TArray<FNDISource>& Sources = FKyroNDIRuntimeState::Get().CurrentSources;
	Sources.Empty();
	for (const FString& Name : Names)
	{
		Sources.Add({Name, TEXT("127.0.0.1:5960")});
	}
}

void HeadlessSourceLists::SetMonitorNames(const TArray<FString>& Names)
{
	TArray<FKyroMonitorInfo>& Monitors = FKyroScreenCaptureRuntimeState::Get().Monitors;
	Monitors.Empty();
	for (const FString& Name : Names)
	{
		Monitors.Add({Name, 1920, 1080});
	}
}

void HeadlessSourceLists::SetWindowNames(const TArray<FString>& Names)
{
	TArray<FKyroWindowInfo>& Windows = FKyroScreenCaptureRuntimeState::Get().Windows;
	Windows.Empty();
	for (int32 Index = 0; Index < Names.Num(); ++Index)
	{
		Windows.Add({Names[Index], static_cast<uint64>(Index + 1)});
	}
}

void HeadlessSourceLists::Reset()
{
	FKyroSpoutRuntimeState::Get().ActiveSenderNames.Empty();
	FKyroNDIRuntimeState::Get().CurrentSources.Empty();
	FKyroScreenCaptureRuntimeState::Get().Monitors.Empty();
	FKyroScreenCaptureRuntimeState::Get().Windows.Empty();
}
