#include "SourceListExchange.h"

#include "KyroSpoutRuntimeState.h"

void HeadlessSourceLists::ExchangeSpoutSenderNames(TArray<FString>& Names)
{
	Swap(FKyroSpoutRuntimeState::Get().ActiveSenderNames, Names);
}
