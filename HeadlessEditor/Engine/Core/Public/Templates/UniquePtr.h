#pragma once

#include "CoreTypes.h"

#include <memory>
#include <utility>

// The engine's single-owner pointer, over the standard library's.
template <typename T>
using TUniquePtr = std::unique_ptr<T>;

template <typename T, typename... TArgs>
FORCEINLINE TUniquePtr<T> MakeUnique(TArgs&&... Args)
{
	return std::make_unique<T>(std::forward<TArgs>(Args)...);
}
