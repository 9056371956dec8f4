#pragma once

#include "CoreMinimal.h"

/** A size that is either a value or unset (the widget then uses its own). */
struct FOptionalSize
{
	FOptionalSize()
		: Size(Unspecified)
	{
	}
	FOptionalSize(const float SpecifiedSize)
		: Size(SpecifiedSize)
	{
	}

	bool IsSet() const { return Size != Unspecified; }
	float Get() const { return Size; }

	bool operator==(const FOptionalSize& Other) const { return Size == Other.Size; }
	bool operator!=(const FOptionalSize& Other) const { return Size != Other.Size; }

private:
	static constexpr float Unspecified = -1.0f;
	float Size;
};
