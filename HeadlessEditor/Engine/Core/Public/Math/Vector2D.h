#pragma once

#include "CoreTypes.h"

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
		explicit TVector2(EForceInit)
			: X(0)
			, Y(0)
		{
		}

		bool operator==(const TVector2& V) const { return X == V.X && Y == V.Y; }
		bool operator!=(const TVector2& V) const { return !(*this == V); }

		static const TVector2 ZeroVector;
	};

	template <typename T>
	const TVector2<T> TVector2<T>::ZeroVector(0, 0);
}

typedef UE::Math::TVector2<double> FVector2D;
typedef UE::Math::TVector2<float> FVector2f;
