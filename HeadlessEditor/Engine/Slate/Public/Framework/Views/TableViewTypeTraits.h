#pragma once

#include "CoreMinimal.h"

/** How list widgets treat their item type: items are pointers, and a null item means "none". */
template <typename T>
struct TListTypeTraits
{
	static_assert(sizeof(T) == 0, "List item types must be shared pointers, shared references or raw pointers.");
};

template <typename T, ESPMode Mode>
struct TListTypeTraits<TSharedPtr<T, Mode>>
{
	typedef TSharedPtr<T, Mode> NullableType;

	static bool IsPtrValid(const TSharedPtr<T, Mode>& InPtr) { return InPtr.IsValid(); }
	static void ResetPtr(TSharedPtr<T, Mode>& InPtr) { InPtr.Reset(); }
	static TSharedPtr<T, Mode> MakeNullPtr() { return TSharedPtr<T, Mode>(nullptr); }
	static TSharedPtr<T, Mode> NullableItemTypeConvertToItemType(const TSharedPtr<T, Mode>& InPtr) { return InPtr; }
};

template <typename T, ESPMode Mode>
struct TListTypeTraits<TSharedRef<T, Mode>>
{
	typedef TSharedPtr<T, Mode> NullableType;

	static bool IsPtrValid(const TSharedPtr<T, Mode>& InPtr) { return InPtr.IsValid(); }
	static void ResetPtr(TSharedPtr<T, Mode>& InPtr) { InPtr.Reset(); }
	static TSharedPtr<T, Mode> MakeNullPtr() { return TSharedPtr<T, Mode>(nullptr); }
	static TSharedRef<T, Mode> NullableItemTypeConvertToItemType(const TSharedPtr<T, Mode>& InPtr) { return InPtr.ToSharedRef(); }
};

template <typename T>
struct TListTypeTraits<T*>
{
	typedef T* NullableType;

	static bool IsPtrValid(T* InPtr) { return InPtr != nullptr; }
	static void ResetPtr(T*& InPtr) { InPtr = nullptr; }
	static T* MakeNullPtr() { return nullptr; }
	static T* NullableItemTypeConvertToItemType(T* InPtr) { return InPtr; }
};
