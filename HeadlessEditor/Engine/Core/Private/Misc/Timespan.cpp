#include "Misc/Timespan.h"

#include <cmath>

namespace
{
	int32 AbsInt(int32 Value)
	{
		return Value < 0 ? -Value : Value;
	}

	/**
	 * The engine converts with a plain (int64) cast. On the x86-64 machines it ships for, a value out of
	 * the int64 range (or NaN) converts to the lowest int64; that outcome is reproduced here without the
	 * undefined conversion.
	 */
	int64 TruncateToTicks(double Value)
	{
		constexpr double TwoToThe63 = 9223372036854775808.0;
		if (!(Value >= -TwoToThe63 && Value < TwoToThe63))
		{
			return ETimespan::MinTicks;
		}
		return (int64)Value;
	}
}

FString FTimespan::ToString() const
{
	if (GetDays() == 0)
	{
		return ToString(TEXT("%h:%m:%s.%f"));
	}
	return ToString(TEXT("%d.%h:%m:%s.%f"));
}

FString FTimespan::ToString(const TCHAR* Format) const
{
	FString Result;
	Result += (Ticks < 0) ? TCHAR('-') : TCHAR('+');

	while (*Format != TCHAR('\0'))
	{
		if ((*Format == TCHAR('%')) && (*++Format != TCHAR('\0')))
		{
			switch (*Format)
			{
				case TCHAR('d'):
					Result += FString::Printf(TEXT("%i"), AbsInt(GetDays()));
					break;
				case TCHAR('D'):
					Result += FString::Printf(TEXT("%08i"), AbsInt(GetDays()));
					break;
				case TCHAR('h'):
					Result += FString::Printf(TEXT("%02i"), AbsInt(GetHours()));
					break;
				case TCHAR('m'):
					Result += FString::Printf(TEXT("%02i"), AbsInt(GetMinutes()));
					break;
				case TCHAR('s'):
					Result += FString::Printf(TEXT("%02i"), AbsInt(GetSeconds()));
					break;
				case TCHAR('f'):
					Result += FString::Printf(TEXT("%03i"), AbsInt(GetFractionMilli()));
					break;
				case TCHAR('u'):
					Result += FString::Printf(TEXT("%06i"), AbsInt(GetFractionMicro()));
					break;
				case TCHAR('t'):
					Result += FString::Printf(TEXT("%07i"), AbsInt(GetFractionTicks()));
					break;
				case TCHAR('n'):
					Result += FString::Printf(TEXT("%09i"), AbsInt(GetFractionNano()));
					break;
				default:
					Result += *Format;
			}
		}
		else
		{
			Result += *Format;
		}
		++Format;
	}
	return Result;
}

FTimespan FTimespan::FromMilliseconds(double Milliseconds)
{
	return FTimespan(TruncateToTicks(std::floor(Milliseconds * ETimespan::TicksPerMillisecond + 0.5)));
}
