#pragma once

#include "CoreMinimal.h"

class UObject;

/** Headless editor only: the transactions the editor recorded, oldest first. */
namespace UE::Headless
{
	struct FRecordedTransaction
	{
		FText Title;
		/** The objects whose state was saved (Modify) while the transaction was open, in order. */
		TArray<UObject*> ModifiedObjects;
		/** Whether the transaction is still open. */
		bool bOpen = true;
	};

	UNREALED_API const TArray<FRecordedTransaction>& GetRecordedTransactions();
	UNREALED_API void ResetRecordedTransactions();
}
