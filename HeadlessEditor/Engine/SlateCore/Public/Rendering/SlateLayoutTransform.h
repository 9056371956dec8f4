#pragma once

#include "CoreMinimal.h"

/**
 * Where a widget's local space sits in its window: a uniform scale, then a translation. Layout
 * never rotates or shears, so this is all a layout transform holds.
 */
class FSlateLayoutTransform
{
public:
	FSlateLayoutTransform(float InScale = 1.0f)
		: Scale(InScale)
		, Translation(0.0f, 0.0f)
	{
	}

	template <typename VType>
	explicit FSlateLayoutTransform(float InScale, const UE::Math::TVector2<VType>& InTranslation)
		: Scale(InScale)
		, Translation(static_cast<float>(InTranslation.X), static_cast<float>(InTranslation.Y))
	{
	}

	template <typename VType>
	explicit FSlateLayoutTransform(const UE::Math::TVector2<VType>& InTranslation)
		: Scale(1.0f)
		, Translation(static_cast<float>(InTranslation.X), static_cast<float>(InTranslation.Y))
	{
	}

	FVector2D GetTranslation() const { return FVector2D(Translation); }
	float GetScale() const { return Scale; }

	/** Scales the point, then moves it. */
	template <typename VType>
	UE::Math::TVector2<VType> TransformPoint(const UE::Math::TVector2<VType>& Point) const
	{
		return UE::Math::TVector2<VType>(Point.X * Scale + Translation.X, Point.Y * Scale + Translation.Y);
	}

	/** Scales the vector; a vector has no position to move. */
	template <typename VType>
	UE::Math::TVector2<VType> TransformVector(const UE::Math::TVector2<VType>& Vector) const
	{
		return UE::Math::TVector2<VType>(Vector.X * Scale, Vector.Y * Scale);
	}

	/** This transform followed by RHS. */
	FSlateLayoutTransform Concatenate(const FSlateLayoutTransform& RHS) const { return FSlateLayoutTransform(Scale * RHS.Scale, RHS.TransformPoint(Translation)); }

	FSlateLayoutTransform Inverse() const { return FSlateLayoutTransform(1.0f / Scale, FVector2f(-Translation.X / Scale, -Translation.Y / Scale)); }

	bool operator==(const FSlateLayoutTransform& Other) const { return Scale == Other.Scale && Translation == Other.Translation; }
	bool operator!=(const FSlateLayoutTransform& Other) const { return !operator==(Other); }

private:
	float Scale;
	FVector2f Translation;
};

/** A transform followed by another. */
inline FSlateLayoutTransform Concatenate(const FSlateLayoutTransform& First, const FSlateLayoutTransform& Second)
{
	return First.Concatenate(Second);
}

inline FSlateLayoutTransform Inverse(const FSlateLayoutTransform& Transform)
{
	return Transform.Inverse();
}

template <typename VType>
UE::Math::TVector2<VType> TransformPoint(const FSlateLayoutTransform& Transform, const UE::Math::TVector2<VType>& Point)
{
	return Transform.TransformPoint(Point);
}

template <typename VType>
UE::Math::TVector2<VType> TransformVector(const FSlateLayoutTransform& Transform, const UE::Math::TVector2<VType>& Vector)
{
	return Transform.TransformVector(Vector);
}
