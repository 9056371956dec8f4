#include "KyroMediaOutput.h"

#include "Components/SceneComponent.h"
#include "CoreGlobals.h"
#include "Misc/ITransaction.h"
#include "KyroMediaOutputState.h"
#include "UObject/Script.h"
#include "UObject/UObjectIterator.h"

namespace
{
	void RecordCall(AKyroMediaOutput* Output, bool bStart)
	{
		FKyroMediaOutputState::FCall& Call = FKyroMediaOutputState::Get().Calls.AddDefaulted_GetRef();
		Call.Output = Output;
		Call.bStart = bStart;
		Call.bScriptExecutionAllowed = GAllowActorScriptExecutionInEditor;
		Call.bInTransaction = GUndo != nullptr;
		Call.TransactionTitle = GUndo ? GUndo->GetContext().Title : FText::GetEmpty();
	}
}

AKyroMediaOutput::AKyroMediaOutput(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, RenderTarget(nullptr)
{
	RootComponent = CreateDefaultSubobject<USceneComponent>(TEXT("Root"));
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

FKyroMediaOutputState& FKyroMediaOutputState::Get()
{
	static FKyroMediaOutputState State;
	return State;
}

void FKyroMediaOutputState::AdvanceClock(uint64 Milliseconds)
{
	for (TObjectIterator<AKyroMediaOutput> It; It; ++It)
	{
		if (It->HasStarted)
		{
			It->DurationMs += Milliseconds;
		}
	}
}
