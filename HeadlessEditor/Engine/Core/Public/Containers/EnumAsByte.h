#pragma once

#include "CoreTypes.h"

/** Stores an enum value in a single byte, as reflected plain enums are held. */
template <class InEnumType>
class TEnumAsByte
{
public:
	typedef InEnumType EnumType;

	TEnumAsByte() = default;
	TEnumAsByte(const TEnumAsByte&) = default;
	TEnumAsByte& operator=(const TEnumAsByte&) = default;
	TEnumAsByte(EnumType InValue)
		: Value(static_cast<uint8>(InValue))
	{
	}
	explicit TEnumAsByte(int32 InValue)
		: Value(static_cast<uint8>(InValue))
	{
	}
	explicit TEnumAsByte(uint8 InValue)
		: Value(InValue)
	{
	}

	bool operator==(EnumType InValue) const { return static_cast<EnumType>(Value) == InValue; }
	bool operator==(TEnumAsByte InValue) const { return Value == InValue.Value; }
	bool operator!=(EnumType InValue) const { return !(*this == InValue); }
	bool operator!=(TEnumAsByte InValue) const { return Value != InValue.Value; }
	operator EnumType() const { return static_cast<EnumType>(Value); }
	EnumType GetValue() const { return static_cast<EnumType>(Value); }
	uint8 GetIntValue() const { return Value; }

private:
	uint8 Value = 0;
};
