#include "SourceListExchange.h"

#include "HeadlessSpoutSenders.h"

void HeadlessSourceLists::ExchangeSpoutSenderNames(TArray<FString>& Names)
{
	UE::Headless::ExchangeActiveSpoutSenderNames(Names);
}
