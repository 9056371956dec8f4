#pragma once

#include "CoreTypes.h"

#include <type_traits>
#include <utility>

template <typename T>
FORCEINLINE constexpr std::remove_reference_t<T>&& MoveTemp(T&& Obj)
{
	return static_cast<std::remove_reference_t<T>&&>(Obj);
}

template <typename T>
FORCEINLINE constexpr T&& Forward(std::remove_reference_t<T>& Obj)
{
	return static_cast<T&&>(Obj);
}

template <typename T>
FORCEINLINE constexpr T&& Forward(std::remove_reference_t<T>&& Obj)
{
	return static_cast<T&&>(Obj);
}

template <typename T>
FORCEINLINE T CopyTemp(const T& Val)
{
	return Val;
}

template <typename T, typename ArgType>
FORCEINLINE void Swap(T& A, ArgType& B)
{
	std::swap(A, B);
}

template <typename T, SIZE_T N>
constexpr SIZE_T UE_ARRAY_COUNT_Helper(T (&)[N])
{
	return N;
}

#define UE_ARRAY_COUNT(Array) UE_ARRAY_COUNT_Helper(Array)
