#pragma once

#include "CoreMinimal.h"
#include "KyroNDIFinder.h"

/** The NDI sources the stand-in's finder sees; tests set them through HeadlessEditor/Testing. */
struct FKyroNDIRuntimeState
{
	TArray<FNDISource> CurrentSources;

	static KYRONDI_API FKyroNDIRuntimeState& Get();
};
