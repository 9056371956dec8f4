#pragma once

#include "CoreTypes.h"

#include <type_traits>

namespace UE::Math
{
	/** Four components, such as the radii of a box's four corners. */
	template <typename T>
	struct TVector4
	{
		T X;
		T Y;
		T Z;
		T W;

		TVector4() = default;
		constexpr TVector4(T InX, T InY, T InZ, T InW = 1)
			: X(InX)
			, Y(InY)
			, Z(InZ)
			, W(InW)
		{
		}
		explicit TVector4(T InValue)
			: X(InValue)
			, Y(InValue)
			, Z(InValue)
			, W(InValue)
		{
		}
		template <typename FArg, typename = std::enable_if_t<!std::is_same_v<T, FArg>>>
		explicit TVector4(const TVector4<FArg>& From)
			: X(static_cast<T>(From.X))
			, Y(static_cast<T>(From.Y))
			, Z(static_cast<T>(From.Z))
			, W(static_cast<T>(From.W))
		{
		}

		bool operator==(const TVector4& V) const { return X == V.X && Y == V.Y && Z == V.Z && W == V.W; }
		bool operator!=(const TVector4& V) const { return !(*this == V); }
	};
}

typedef UE::Math::TVector4<double> FVector4;
typedef UE::Math::TVector4<double> FVector4d;
typedef UE::Math::TVector4<float> FVector4f;
