#include "KyroMediaOutput.h"

#include "CoreGlobals.h"
#include "HeadlessMediaOutputs.h"
#include "Misc/ITransaction.h"
#include "UObject/Script.h"
#include "UObject/UObjectIterator.h"

namespace
{
	TArray<UE::Headless::FMediaOutputCall>& Calls()
	{
		static TArray<UE::Headless::FMediaOutputCall> Recorded;
		return Recorded;
	}

	void RecordCall(AKyroMediaOutput* Output, bool bStart)
	{
		UE::Headless::FMediaOutputCall& Call = Calls().AddDefaulted_GetRef();
		Call.Output = Output;
		Call.bStart = bStart;
		Call.bScriptExecutionAllowed = GAllowActorScriptExecutionInEditor;
		Call.bInTransaction = GUndo != nullptr;
		Call.TransactionTitle = GUndo ? GUndo->GetContext().Title : FText::GetEmpty();
	}
}

void AKyroMediaOutput::Start()
{
	RecordCall(this, true);
	HasStarted = true;
	DurationMs = 0;
}

void AKyroMediaOutput::Stop()
{
	RecordCall(this, false);
	HasStarted = false;
}

TArray<UE::Headless::FMediaOutputCall> UE::Headless::GetMediaOutputCalls()
{
	return Calls();
}

void UE::Headless::ResetMediaOutputCalls()
{
	Calls().Reset();
}

void UE::Headless::AdvanceMediaOutputClock(uint64 Milliseconds)
{
	for (TObjectIterator<AKyroMediaOutput> It; It; ++It)
	{
		if (It->HasStarted)
		{
			It->DurationMs += Milliseconds;
		}
	}
}
