#pragma once

#include "CoreMinimal.h"

/** The Spout senders that are active on this machine. */
class KYROSPOUT_API FKyroSpoutNames
{
public:
	/** The active senders' names, in the order Spout lists them. */
	static TArray<FString> GetActiveSenderNames();
};
