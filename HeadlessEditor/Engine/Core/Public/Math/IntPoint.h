#pragma once

#include "CoreTypes.h"

/** A point or size in integers, such as a texture's size in pixels. */
struct FIntPoint
{
	int32 X;
	int32 Y;

	FIntPoint() = default;
	FIntPoint(int32 InX, int32 InY)
		: X(InX)
		, Y(InY)
	{
	}

	bool operator==(const FIntPoint& Other) const { return X == Other.X && Y == Other.Y; }
	bool operator!=(const FIntPoint& Other) const { return !(*this == Other); }
};
