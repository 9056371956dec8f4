#pragma once

#include "CoreMinimal.h"

class AKyroMediaOutput;

/** What the media-output stand-in records, and its clock (driven by tests through HeadlessEditor/Testing). */
struct FKyroMediaOutputState
{
	/** One call of Start or Stop, with the editor state it ran in. */
	struct FCall
	{
		AKyroMediaOutput* Output = nullptr;
		bool bStart = false;
		bool bScriptExecutionAllowed = false;
		bool bInTransaction = false;
		/** The title of the transaction open during the call, if any. */
		FText TransactionTitle;
	};

	TArray<FCall> Calls;

	/** Lets every started media output run for the given time. */
	KYROMEDIA_API void AdvanceClock(uint64 Milliseconds);

	static KYROMEDIA_API FKyroMediaOutputState& Get();
};
