#pragma once

#include "CoreMinimal.h"

/** Where a widget sits and how large it is. The headless editor lays nothing out, so it carries only a size. */
struct SLATECORE_API FGeometry
{
	FGeometry() = default;

	const FVector2D& GetLocalSize() const { return Size; }

	/** Size of the geometry in local space. */
	FVector2D Size = FVector2D(0.0, 0.0);
};
