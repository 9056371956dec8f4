#pragma once

#include "CoreTypes.h"

#include <cmath>
#include <type_traits>

namespace UE::Math
{
	template <typename T>
	struct TVector2
	{
		T X;
		T Y;

		TVector2() = default;
		constexpr TVector2(T InX, T InY)
			: X(InX)
			, Y(InY)
		{
		}
		explicit TVector2(T InF)
			: X(InF)
			, Y(InF)
		{
		}
		explicit TVector2(EForceInit)
			: X(0)
			, Y(0)
		{
		}
		/** Converts between the float and double vectors. */
		template <typename FArg, typename = std::enable_if_t<!std::is_same_v<T, FArg>>>
		explicit TVector2(const TVector2<FArg>& From)
			: X(static_cast<T>(From.X))
			, Y(static_cast<T>(From.Y))
		{
		}

		TVector2 operator+(const TVector2& V) const { return TVector2(X + V.X, Y + V.Y); }
		TVector2 operator-(const TVector2& V) const { return TVector2(X - V.X, Y - V.Y); }
		TVector2 operator*(const TVector2& V) const { return TVector2(X * V.X, Y * V.Y); }
		TVector2 operator/(const TVector2& V) const { return TVector2(X / V.X, Y / V.Y); }
		TVector2 operator*(T Scale) const { return TVector2(X * Scale, Y * Scale); }
		TVector2 operator/(T Scale) const { return TVector2(X / Scale, Y / Scale); }
		TVector2 operator+(T A) const { return TVector2(X + A, Y + A); }
		TVector2 operator-(T A) const { return TVector2(X - A, Y - A); }
		TVector2 operator-() const { return TVector2(-X, -Y); }

		TVector2& operator+=(const TVector2& V)
		{
			X += V.X;
			Y += V.Y;
			return *this;
		}
		TVector2& operator-=(const TVector2& V)
		{
			X -= V.X;
			Y -= V.Y;
			return *this;
		}
		TVector2& operator*=(T Scale)
		{
			X *= Scale;
			Y *= Scale;
			return *this;
		}
		TVector2& operator/=(T Scale)
		{
			X /= Scale;
			Y /= Scale;
			return *this;
		}

		bool operator==(const TVector2& V) const { return X == V.X && Y == V.Y; }
		bool operator!=(const TVector2& V) const { return !(*this == V); }

		T& operator[](int32 Index) { return Index == 0 ? X : Y; }
		T operator[](int32 Index) const { return Index == 0 ? X : Y; }

		T GetMax() const { return X > Y ? X : Y; }
		T GetMin() const { return X < Y ? X : Y; }
		TVector2 ComponentMax(const TVector2& Other) const { return TVector2(X > Other.X ? X : Other.X, Y > Other.Y ? Y : Other.Y); }
		TVector2 ComponentMin(const TVector2& Other) const { return TVector2(X < Other.X ? X : Other.X, Y < Other.Y ? Y : Other.Y); }
		T Size() const { return std::sqrt(X * X + Y * Y); }
		T SizeSquared() const { return X * X + Y * Y; }
		bool IsZero() const { return X == 0 && Y == 0; }
		bool Equals(const TVector2& V, T Tolerance = static_cast<T>(1.e-4)) const { return std::fabs(X - V.X) <= Tolerance && std::fabs(Y - V.Y) <= Tolerance; }

		static const TVector2 ZeroVector;
		static const TVector2 UnitVector;
	};

	template <typename T>
	const TVector2<T> TVector2<T>::ZeroVector(0, 0);

	template <typename T>
	const TVector2<T> TVector2<T>::UnitVector(1, 1);

	template <typename T, typename T2, typename = std::enable_if_t<std::is_arithmetic_v<T2>>>
	TVector2<T> operator*(T2 Scale, const TVector2<T>& V)
	{
		return V * static_cast<T>(Scale);
	}
}

typedef UE::Math::TVector2<double> FVector2D;
typedef UE::Math::TVector2<double> FVector2d;
typedef UE::Math::TVector2<float> FVector2f;
