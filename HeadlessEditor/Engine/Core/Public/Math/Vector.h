#pragma once

#include "CoreTypes.h"

namespace UE::Math
{
	/** A 3D vector; double precision, as with large world coordinates in 5.x. */
	template <typename T>
	struct TVector
	{
		T X;
		T Y;
		T Z;

		TVector() = default;
		constexpr TVector(T InX, T InY, T InZ)
			: X(InX)
			, Y(InY)
			, Z(InZ)
		{
		}
		explicit TVector(EForceInit)
			: X(0)
			, Y(0)
			, Z(0)
		{
		}

		bool operator==(const TVector& V) const { return X == V.X && Y == V.Y && Z == V.Z; }
		bool operator!=(const TVector& V) const { return !(*this == V); }
		TVector operator+(const TVector& V) const { return TVector(X + V.X, Y + V.Y, Z + V.Z); }
		TVector operator-(const TVector& V) const { return TVector(X - V.X, Y - V.Y, Z - V.Z); }
		TVector operator*(T Scale) const { return TVector(X * Scale, Y * Scale, Z * Scale); }

		static const TVector ZeroVector;
		static const TVector OneVector;
	};

	template <typename T>
	const TVector<T> TVector<T>::ZeroVector(0, 0, 0);
	template <typename T>
	const TVector<T> TVector<T>::OneVector(1, 1, 1);
}

typedef UE::Math::TVector<double> FVector;
typedef UE::Math::TVector<float> FVector3f;
