#pragma once

#include "CoreMinimal.h"

class AKyroMediaOutput;

/** What tests set and read on the media-output and hardware-encoder parts of the runtime stand-ins. */
namespace HeadlessRuntime
{
	/** What FCastellanModule::SuggestLoadingHardwareEncodersPlugin answers from now on. */
	HEADLESSTESTING_API void SetSuggestLoadingHardwareEncodersPlugin(bool bSuggest);
	/** Forgets the pending restart, as a restarted editor would. */
	HEADLESSTESTING_API void ClearHardwareEncodersPendingRestart();

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
	HEADLESSTESTING_API TArray<FMediaOutputCall> GetMediaOutputCalls();
	HEADLESSTESTING_API void ResetMediaOutputCalls();

	/** Lets every started media output run for the given time. */
	HEADLESSTESTING_API void AdvanceMediaOutputClock(uint64 Milliseconds);
}
