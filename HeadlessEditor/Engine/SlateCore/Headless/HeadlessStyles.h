#pragma once

#include "CoreMinimal.h"

class FSlateStyleSet;

/** Headless editor only: what a style set holds, as the widget reflector would list it. */
namespace UE::Headless
{
	/** The keys of the style set's brushes, in the order they were added. */
	SLATECORE_API TArray<FName> GetBrushKeys(const FSlateStyleSet& Style);
}
