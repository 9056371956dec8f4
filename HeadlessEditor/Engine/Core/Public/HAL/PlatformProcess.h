#pragma once

#include "Containers/UnrealString.h"
#include "CoreTypes.h"

/** Process-level services of the platform. */
struct CORE_API FGenericPlatformProcess
{
	/** Opens a web address in the system's browser; Error receives a reason on failure. */
	static void LaunchURL(const TCHAR* URL, const TCHAR* Parms, FString* Error);
	static bool CanLaunchURL(const TCHAR* URL);
};

typedef FGenericPlatformProcess FPlatformProcess;
