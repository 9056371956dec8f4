#pragma once

#include "CoreMinimal.h"

/** The machine's Spout senders as the stand-in sees them; tests set them through HeadlessEditor/Testing. */
struct FKyroSpoutRuntimeState
{
	TArray<FString> ActiveSenderNames;

	static KYROSPOUT_API FKyroSpoutRuntimeState& Get();
};
