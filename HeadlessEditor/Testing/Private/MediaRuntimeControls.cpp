#include "MediaRuntimeControls.h"

#include "HardwareEncodersState.h"
#include "KyroMediaOutputState.h"

void HeadlessRuntime::SetSuggestLoadingHardwareEncodersPlugin(bool bSuggest)
{
	FHardwareEncodersState::Get().bSuggestLoading = bSuggest;
}

void HeadlessRuntime::ClearHardwareEncodersPendingRestart()
{
	FHardwareEncodersState::Get().bPendingRestart = false;
}

TArray<HeadlessRuntime::FMediaOutputCall> HeadlessRuntime::GetMediaOutputCalls()
{
	TArray<FMediaOutputCall> Calls;
	for (const FKyroMediaOutputState::FCall& Recorded : FKyroMediaOutputState::Get().Calls)
	{
		FMediaOutputCall& Call = Calls.AddDefaulted_GetRef();
		Call.Output = Recorded.Output;
		Call.bStart = Recorded.bStart;
		Call.bScriptExecutionAllowed = Recorded.bScriptExecutionAllowed;
		Call.bInTransaction = Recorded.bInTransaction;
		Call.TransactionTitle = Recorded.TransactionTitle;
	}
	return Calls;
}

void HeadlessRuntime::ResetMediaOutputCalls()
{
	FKyroMediaOutputState::Get().Calls.Reset();
}

void HeadlessRuntime::AdvanceMediaOutputClock(uint64 Milliseconds)
{
	FKyroMediaOutputState::Get().AdvanceClock(Milliseconds);
}
