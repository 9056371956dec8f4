#pragma once

#include "CoreTypes.h"

/** Checksums. StrCrc32 is case-sensitive, as the engine's is. */
struct FCrc
{
	template <typename CharType>
	static uint32 StrCrc32(const CharType* Data, uint32 CRC = 0)
	{
		// FNV-1a over the characters; the engine's table-driven CRC gives other numbers, never relied upon.
		uint32 Hash = ~CRC ^ 2166136261u;
		for (; *Data; ++Data)
		{
			Hash = (Hash ^ static_cast<uint32>(*Data)) * 16777619u;
		}
		return Hash;
	}
};
