#pragma once

#include "CoreMinimal.h"

/** The Spout senders of the headless machine: those the instruments say are active. */
namespace UE::Headless
{
	/** The names FKyroSpoutNames::GetActiveSenderNames reports from now on, in that order. */
	KYROSPOUT_API void SetActiveSpoutSenderNames(TArray<FString> Names);

	/** Trades the active sender names with Names, copying neither list. */
	KYROSPOUT_API void ExchangeActiveSpoutSenderNames(TArray<FString>& Names);
}
