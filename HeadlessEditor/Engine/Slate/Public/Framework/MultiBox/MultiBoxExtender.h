#pragma once

#include "CoreMinimal.h"

/** Extensions that other modules hook into a menu or toolbar at its extension points. */
class SLATE_API FExtender
{
public:
	virtual ~FExtender() {}
};
