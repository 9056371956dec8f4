#include "KyroSpoutNames.h"

#include "HeadlessSpoutSenders.h"

namespace
{
	TArray<FString>& ActiveSenderNames()
	{
		static TArray<FString> Names;
		return Names;
	}
}

TArray<FString> FKyroSpoutNames::GetActiveSenderNames()
{
	return ActiveSenderNames();
}

void UE::Headless::SetActiveSpoutSenderNames(TArray<FString> Names)
{
	ActiveSenderNames() = MoveTemp(Names);
}

void UE::Headless::ExchangeActiveSpoutSenderNames(TArray<FString>& Names)
{
	Swap(ActiveSenderNames(), Names);
}
