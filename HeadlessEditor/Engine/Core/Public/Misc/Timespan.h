#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"
#include "Misc/AssertionMacros.h"

namespace ETimespan
{
	constexpr int64 MaxTicks = 9223372036854775807;
	constexpr int64 MinTicks = -9223372036854775807 - 1;
	constexpr int64 NanosecondsPerTick = 100;
	constexpr int64 TicksPerDay = 864000000000;
	constexpr int64 TicksPerHour = 36000000000;
	constexpr int64 TicksPerMicrosecond = 10;
	constexpr int64 TicksPerMillisecond = 10000;
	constexpr int64 TicksPerMinute = 600000000;
	constexpr int64 TicksPerSecond = 10000000;
}

/** A length of time, in 100 ns ticks. */
struct FTimespan
{
	FTimespan()
		: Ticks(0)
	{
	}

	FTimespan(int64 InTicks)
		: Ticks(InTicks)
	{
	}

	bool operator==(const FTimespan& Other) const { return Ticks == Other.Ticks; }
	bool operator!=(const FTimespan& Other) const { return Ticks != Other.Ticks; }

	int32 GetDays() const { return (int32)(Ticks / ETimespan::TicksPerDay); }
	int32 GetHours() const { return (int32)((Ticks / ETimespan::TicksPerHour) % 24); }
	int32 GetMinutes() const { return (int32)((Ticks / ETimespan::TicksPerMinute) % 60); }
	int32 GetSeconds() const { return (int32)((Ticks / ETimespan::TicksPerSecond) % 60); }
	int32 GetFractionMilli() const { return (int32)((Ticks % ETimespan::TicksPerSecond) / ETimespan::TicksPerMillisecond); }
	int32 GetFractionMicro() const { return (int32)((Ticks % ETimespan::TicksPerSecond) / ETimespan::TicksPerMicrosecond); }
	int32 GetFractionNano() const { return (int32)((Ticks % ETimespan::TicksPerSecond) * ETimespan::NanosecondsPerTick); }
	int32 GetFractionTicks() const { return (int32)(Ticks % ETimespan::TicksPerSecond); }
	int64 GetTicks() const { return Ticks; }

	/** "[-|+]h:mm:ss.fff", with a leading "d." when the span reaches a day. */
	CORE_API FString ToString() const;

	/** Formats with %d (days), %D (8-digit days), %h, %m, %s, %f (ms), %u (µs), %t (ticks), %n (ns); a sign always leads. */
	CORE_API FString ToString(const TCHAR* Format) const;

	/** Rounds to the nearest tick. */
	CORE_API static FTimespan FromMilliseconds(double Milliseconds);

private:
	int64 Ticks;
};
