#pragma once

#include "CoreMinimal.h"

/** Space around the four sides of a widget, in slate units. */
struct FMargin
{
	float Left;
	float Top;
	float Right;
	float Bottom;

	FMargin()
		: Left(0.0f)
		, Top(0.0f)
		, Right(0.0f)
		, Bottom(0.0f)
	{
	}
	FMargin(float UniformMargin)
		: Left(UniformMargin)
		, Top(UniformMargin)
		, Right(UniformMargin)
		, Bottom(UniformMargin)
	{
	}
	FMargin(float Horizontal, float Vertical)
		: Left(Horizontal)
		, Top(Vertical)
		, Right(Horizontal)
		, Bottom(Vertical)
	{
	}
	FMargin(float InLeft, float InTop, float InRight, float InBottom)
		: Left(InLeft)
		, Top(InTop)
		, Right(InRight)
		, Bottom(InBottom)
	{
	}
	FMargin(const FVector2D& InVector)
		: Left(static_cast<float>(InVector.X))
		, Top(static_cast<float>(InVector.Y))
		, Right(static_cast<float>(InVector.X))
		, Bottom(static_cast<float>(InVector.Y))
	{
	}

	FMargin operator+(const FMargin& Other) const { return FMargin(Left + Other.Left, Top + Other.Top, Right + Other.Right, Bottom + Other.Bottom); }
	bool operator==(const FMargin& Other) const { return Left == Other.Left && Top == Other.Top && Right == Other.Right && Bottom == Other.Bottom; }
	bool operator!=(const FMargin& Other) const { return !(*this == Other); }
};
