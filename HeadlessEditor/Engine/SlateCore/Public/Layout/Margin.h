#pragma once

#include "CoreMinimal.h"
#include "Types/SlateEnums.h"

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
	FMargin(const FVector2D InVector)
		: Left(static_cast<float>(InVector.X))
		, Top(static_cast<float>(InVector.Y))
		, Right(static_cast<float>(InVector.X))
		, Bottom(static_cast<float>(InVector.Y))
	{
	}

	FMargin operator*(float Scale) const { return FMargin(Left * Scale, Top * Scale, Right * Scale, Bottom * Scale); }
	FMargin operator*(const FMargin& InScale) const { return FMargin(Left * InScale.Left, Top * InScale.Top, Right * InScale.Right, Bottom * InScale.Bottom); }
	FMargin operator+(const FMargin& Other) const { return FMargin(Left + Other.Left, Top + Other.Top, Right + Other.Right, Bottom + Other.Bottom); }
	FMargin operator-(const FMargin& Other) const { return FMargin(Left - Other.Left, Top - Other.Top, Right - Other.Right, Bottom - Other.Bottom); }

	/** @return the space the margin takes: left and right, top and bottom together */
	FVector2D GetDesiredSize() const { return FVector2D(Left + Right, Top + Bottom); }

	/** @return the space the margin takes along one direction */
	template <EOrientation Orientation>
	float GetTotalSpaceAlong() const
	{
		return Orientation == Orient_Horizontal ? Left + Right : Top + Bottom;
	}
	bool operator==(const FMargin& Other) const { return Left == Other.Left && Top == Other.Top && Right == Other.Right && Bottom == Other.Bottom; }
	bool operator!=(const FMargin& Other) const { return !(*this == Other); }
};
