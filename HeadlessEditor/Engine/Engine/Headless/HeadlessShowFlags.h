#pragma once

#include "CoreMinimal.h"

/** Headless editor only: show flags as another engine build would have them. */
namespace UE::Headless
{
	/**
	 * Makes the built-in flags at these indices absent, as in a build compiled without them: they
	 * have no name and their names are unknown. An empty list brings every flag back.
	 */
	ENGINE_API void SetShowFlagsMissingFromBuild(const TArray<uint32>& Indices);
}
