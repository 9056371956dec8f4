#include "KyroSpoutNames.h"

#include "KyroSpoutRuntimeState.h"

FKyroSpoutRuntimeState& FKyroSpoutRuntimeState::Get()
{
	static FKyroSpoutRuntimeState State;
	return State;
}

TArray<FString> FKyroSpoutNames::GetActiveSenderNames()
{
	return FKyroSpoutRuntimeState::Get().ActiveSenderNames;
}
