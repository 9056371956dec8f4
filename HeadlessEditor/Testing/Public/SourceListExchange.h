#pragma once

#include "CoreMinimal.h"

namespace HeadlessSourceLists
{
	/**
	 * Trades the Spout runtime's live sender names with Names, without copying either list, so
	 * that benchmarks can change the live senders between frames at no cost of their own.
	 */
	HEADLESSTESTING_API void ExchangeSpoutSenderNames(TArray<FString>& Names);
}
