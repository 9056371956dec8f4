#pragma once

#include "CoreMinimal.h"

class AKyroMediaOutput;

/** What the media outputs were asked to do, and the clock they run by. */
namespace UE::Headless
{
	/** One call of AKyroMediaOutput::Start or Stop and the editor state it ran in. */
	struct FMediaOutputCall
	{
		AKyroMediaOutput* Output = nullptr;
		bool bStart = false;
		bool bScriptExecutionAllowed = false;
		bool bInTransaction = false;
		/** The title of the transaction open during the call, if any. */
		FText TransactionTitle;
	};

	/** Every Start and Stop call on a media output since the last reset, in order. */
	KYROMEDIA_API TArray<FMediaOutputCall> GetMediaOutputCalls();
	KYROMEDIA_API void ResetMediaOutputCalls();

	/** Lets every started media output run for the given time. */
	KYROMEDIA_API void AdvanceMediaOutputClock(uint64 Milliseconds);
}
