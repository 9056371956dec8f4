#pragma once

#include "Containers/UnrealString.h"

#include <cstdarg>

namespace UE::Core::Private
{
	/** printf-style formatting over TCHARs: %s takes a const TCHAR*. */
	FString FormatV(const TCHAR* Format, va_list Args);
}
