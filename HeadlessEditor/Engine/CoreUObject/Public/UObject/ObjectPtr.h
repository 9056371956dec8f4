#pragma once

#include "CoreTypes.h"

#include <type_traits>

/** A reference to an object, as UPROPERTY members hold them in 5.x; converts to and from raw pointers. */
template <typename T>
struct TObjectPtr
{
public:
	using ElementType = T;

	TObjectPtr() = default;
	TObjectPtr(TYPE_OF_NULLPTR) {}
	TObjectPtr(const TObjectPtr&) = default;
	TObjectPtr& operator=(const TObjectPtr&) = default;
	template <typename U, typename = std::enable_if_t<std::is_convertible_v<U*, T*>>>
	TObjectPtr(U* Object)
		: Pointer(Object)
	{
	}
	template <typename U, typename = std::enable_if_t<std::is_convertible_v<U*, T*>>>
	TObjectPtr(const TObjectPtr<U>& Other)
		: Pointer(Other.Get())
	{
	}
	template <typename U, typename = std::enable_if_t<std::is_convertible_v<U*, T*>>>
	TObjectPtr& operator=(U* Object)
	{
		Pointer = Object;
		return *this;
	}
	TObjectPtr& operator=(TYPE_OF_NULLPTR)
	{
		Pointer = nullptr;
		return *this;
	}

	T* Get() const { return Pointer; }
	operator T*() const { return Pointer; }
	template <typename U, typename = std::enable_if_t<!std::is_same_v<U, T> && std::is_convertible_v<T*, U*>>>
	explicit operator U*() const
	{
		return Pointer;
	}
	T* operator->() const { return Pointer; }
	T& operator*() const { return *Pointer; }
	explicit operator bool() const { return Pointer != nullptr; }

	bool operator==(const TObjectPtr& Other) const { return Pointer == Other.Pointer; }
	bool operator!=(const TObjectPtr& Other) const { return Pointer != Other.Pointer; }
	template <typename U>
	bool operator==(U* Other) const
	{
		return Pointer == Other;
	}
	template <typename U>
	bool operator!=(U* Other) const
	{
		return Pointer != Other;
	}
	bool operator==(TYPE_OF_NULLPTR) const { return Pointer == nullptr; }
	bool operator!=(TYPE_OF_NULLPTR) const { return Pointer != nullptr; }

	friend uint32 GetTypeHash(const TObjectPtr& Ptr) { return static_cast<uint32>(reinterpret_cast<uintptr_t>(Ptr.Pointer) >> 4); }

private:
	T* Pointer = nullptr;
};

template <typename T>
T* ToRawPtr(const TObjectPtr<T>& Ptr)
{
	return Ptr.Get();
}
template <typename T>
T* ToRawPtr(T* Ptr)
{
	return Ptr;
}
