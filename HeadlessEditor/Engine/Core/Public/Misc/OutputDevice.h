#pragma once

#include "CoreTypes.h"
#include "Logging/LogVerbosity.h"

class FName;

/** Receives log lines. */
class CORE_API FOutputDevice
{
public:
	virtual ~FOutputDevice() = default;
	virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category) = 0;
};
