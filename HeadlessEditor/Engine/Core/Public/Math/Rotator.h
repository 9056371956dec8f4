#pragma once

#include "CoreTypes.h"

namespace UE::Math
{
	/** Orientation in degrees. */
	template <typename T>
	struct TRotator
	{
		T Pitch;
		T Yaw;
		T Roll;

		TRotator() = default;
		constexpr TRotator(T InPitch, T InYaw, T InRoll)
			: Pitch(InPitch)
			, Yaw(InYaw)
			, Roll(InRoll)
		{
		}
		explicit TRotator(EForceInit)
			: Pitch(0)
			, Yaw(0)
			, Roll(0)
		{
		}

		bool operator==(const TRotator& R) const { return Pitch == R.Pitch && Yaw == R.Yaw && Roll == R.Roll; }
		bool operator!=(const TRotator& R) const { return !(*this == R); }

		static const TRotator ZeroRotator;
	};

	template <typename T>
	const TRotator<T> TRotator<T>::ZeroRotator(0, 0, 0);

	template <typename T>
	struct TQuat
	{
		T X = 0;
		T Y = 0;
		T Z = 0;
		T W = 1;
	};
}

typedef UE::Math::TRotator<double> FRotator;
typedef UE::Math::TQuat<double> FQuat;
