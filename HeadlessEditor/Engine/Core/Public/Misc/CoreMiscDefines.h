#pragma once

#include "CoreTypes.h"
#include "Misc/AssertionMacros.h"

/** The body of a virtual that derived classes must override but that cannot be pure, since its class is constructed. */
#define PURE_VIRTUAL(func, ...) \
	{ \
		checkf(false, TEXT("Pure virtual not implemented (%s)"), TEXT(#func)); \
		__VA_ARGS__ \
	}
