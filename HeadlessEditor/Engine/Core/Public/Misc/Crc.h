#pragma once

#include "CoreTypes.h"

#include <cstring>

/** Checksums. StrCrc32 is case-sensitive, as the engine's is. */
struct FCrc
{
	/** A checksum of Length bytes. */
	static uint32 MemCrc32(const void* Data, int32 Length, uint32 CRC = 0)
	{
		// Multiply-and-fold over 8-byte words, then the tail bytes; the engine's slicing-by-8 CRC
		// gives other numbers, never relied upon.
		const uint8* Bytes = static_cast<const uint8*>(Data);
		uint64 Hash = ~static_cast<uint64>(CRC) ^ 14695981039346656037ull;
		for (; Length >= 8; Bytes += 8, Length -= 8)
		{
			uint64 Word;
			memcpy(&Word, Bytes, sizeof(Word));
			Hash = MixWord(Hash ^ Word);
		}
		for (; Length > 0; ++Bytes, --Length)
		{
			Hash = MixWord(Hash ^ *Bytes);
		}
		return Mix(static_cast<uint32>(Hash ^ (Hash >> 32)));
	}

	template <typename CharType>
	static uint32 StrCrc32(const CharType* Data, uint32 CRC = 0)
	{
		// FNV-1a over the characters; the engine's table-driven CRC gives other numbers, never relied upon.
		uint32 Hash = ~CRC ^ 2166136261u;
		for (; *Data; ++Data)
		{
			Hash = (Hash ^ static_cast<uint32>(*Data)) * 16777619u;
		}
		return Mix(Hash);
	}

private:
	static uint64 MixWord(uint64 Hash)
	{
		Hash *= 0x9e3779b97f4a7c15ull;
		return Hash ^ (Hash >> 29);
	}

	/** Spreads every input bit into the low bits, which hashed containers mask with. */
	static uint32 Mix(uint32 Hash)
	{
		Hash ^= Hash >> 16;
		Hash *= 0x85ebca6bu;
		Hash ^= Hash >> 13;
		Hash *= 0xc2b2ae35u;
		Hash ^= Hash >> 16;
		return Hash;
	}
};
