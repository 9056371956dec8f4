#pragma once

#include "CoreMinimal.h"

/** What tests set on the runtime stand-ins' live source lists: Spout senders, NDI sources, monitors, windows. */
namespace HeadlessSourceLists
{
	HEADLESSTESTING_API void SetSpoutSenderNames(const TArray<FString>& Names);
	HEADLESSTESTING_API void SetNDISourceNames(const TArray<FString>& Names);
	HEADLESSTESTING_API void SetMonitorNames(const TArray<FString>& Names);
	HEADLESSTESTING_API void SetWindowNames(const TArray<FString>& Names);
	/** Empties every list. */
	HEADLESSTESTING_API void Reset();
}
