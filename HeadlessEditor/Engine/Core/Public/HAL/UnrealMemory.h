#pragma once

#include "CoreTypes.h"

#include <cstring>

/** The engine's memory functions; only what the editor uses is here. */
struct FMemory
{
	static FORCEINLINE int32 Memcmp(const void* Buf1, const void* Buf2, SIZE_T Count) { return memcmp(Buf1, Buf2, Count); }
};
