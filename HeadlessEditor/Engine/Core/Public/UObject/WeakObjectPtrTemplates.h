#pragma once

#include "CoreTypes.h"

#include <type_traits>

struct FWeakObjectPtr;
class UObject;

/**
 * A weak pointer to a UObject: it does not keep the object alive and reads as null once the object
 * is destroyed. The base (CoreUObject's FWeakObjectPtr) holds the object's index and serial number.
 */
template <class T = UObject, class TWeakObjectPtrBase = FWeakObjectPtr>
struct TWeakObjectPtr : private TWeakObjectPtrBase
{
	template <class, class>
	friend struct TWeakObjectPtr;

public:
	using ElementType = T;

	TWeakObjectPtr() = default;
	TWeakObjectPtr(const TWeakObjectPtr&) = default;
	TWeakObjectPtr& operator=(const TWeakObjectPtr&) = default;

	TWeakObjectPtr(TYPE_OF_NULLPTR)
		: TWeakObjectPtrBase((const UObject*)nullptr)
	{
	}

	template <typename U, typename = std::enable_if_t<std::is_convertible_v<U, T*>>>
	TWeakObjectPtr(U Object)
		: TWeakObjectPtrBase((const UObject*)static_cast<T*>(Object))
	{
	}

	template <typename OtherT, typename = std::enable_if_t<std::is_convertible_v<OtherT*, T*>>>
	TWeakObjectPtr(const TWeakObjectPtr<OtherT, TWeakObjectPtrBase>& Other)
		: TWeakObjectPtrBase(static_cast<const TWeakObjectPtrBase&>(Other))
	{
	}

	template <typename U, typename = std::enable_if_t<std::is_convertible_v<U, T*>>>
	TWeakObjectPtr& operator=(U Object)
	{
		TWeakObjectPtrBase::operator=((const UObject*)static_cast<T*>(Object));
		return *this;
	}

	template <typename OtherT, typename = std::enable_if_t<std::is_convertible_v<OtherT*, T*>>>
	TWeakObjectPtr& operator=(const TWeakObjectPtr<OtherT, TWeakObjectPtrBase>& Other)
	{
		TWeakObjectPtrBase::operator=(static_cast<const TWeakObjectPtrBase&>(Other));
		return *this;
	}

	void Reset() { TWeakObjectPtrBase::Reset(); }

	T* Get(bool bEvenIfPendingKill) const { return (T*)TWeakObjectPtrBase::Get(bEvenIfPendingKill); }
	T* Get() const { return (T*)TWeakObjectPtrBase::Get(); }
	T& operator*() const { return *Get(); }
	T* operator->() const { return Get(); }

	bool IsValid(bool bEvenIfPendingKill, bool bThreadsafeTest = false) const { return TWeakObjectPtrBase::IsValid(bEvenIfPendingKill, bThreadsafeTest); }
	bool IsValid() const { return TWeakObjectPtrBase::IsValid(); }
	bool IsStale(bool bIncludingIfPendingKill = true, bool bThreadsafeTest = false) const { return TWeakObjectPtrBase::IsStale(bIncludingIfPendingKill, bThreadsafeTest); }
	bool IsExplicitlyNull() const { return TWeakObjectPtrBase::IsExplicitlyNull(); }

	explicit operator bool() const { return TWeakObjectPtrBase::IsValid(); }

	template <typename OtherT>
	bool operator==(const TWeakObjectPtr<OtherT, TWeakObjectPtrBase>& Other) const
	{
		return static_cast<const TWeakObjectPtrBase&>(*this) == static_cast<const TWeakObjectPtrBase&>(Other);
	}
	template <typename OtherT>
	bool operator!=(const TWeakObjectPtr<OtherT, TWeakObjectPtrBase>& Other) const
	{
		return !(*this == Other);
	}
	template <typename U, typename = std::enable_if_t<std::is_convertible_v<U*, const T*>>>
	bool operator==(const U* Other) const
	{
		return Get() == Other;
	}
	template <typename U, typename = std::enable_if_t<std::is_convertible_v<U*, const T*>>>
	bool operator!=(const U* Other) const
	{
		return Get() != Other;
	}
	bool operator==(TYPE_OF_NULLPTR) const { return !IsValid(); }
	bool operator!=(TYPE_OF_NULLPTR) const { return IsValid(); }

	friend uint32 GetTypeHash(const TWeakObjectPtr& WeakObjectPtr) { return GetTypeHash(static_cast<const TWeakObjectPtrBase&>(WeakObjectPtr)); }
};

template <typename T>
TWeakObjectPtr<T> MakeWeakObjectPtr(T* Object)
{
	return TWeakObjectPtr<T>(Object);
}
