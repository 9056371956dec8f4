#pragma once

#include "CoreMinimal.h"
#include "UObject/UObjectArray.h"

class UObject;

/** The untyped weak pointer: an object index and the serial number the slot had when it was set. */
struct COREUOBJECT_API FWeakObjectPtr
{
	FWeakObjectPtr() = default;
	FWeakObjectPtr(TYPE_OF_NULLPTR) {}
	FWeakObjectPtr(const UObject* Object) { (*this) = Object; }
	FWeakObjectPtr(const FWeakObjectPtr&) = default;
	FWeakObjectPtr& operator=(const FWeakObjectPtr&) = default;

	void operator=(const UObject* Object);
	void Reset()
	{
		ObjectIndex = INDEX_NONE;
		ObjectSerialNumber = 0;
	}

	/** The object, or null once it has been destroyed (or marked as garbage, unless asked). */
	UObject* Get(bool bEvenIfPendingKill) const;
	UObject* Get() const { return Get(false); }
	bool IsValid(bool bEvenIfPendingKill, bool bThreadsafeTest = false) const;
	bool IsValid() const { return IsValid(false); }
	/** True when it was set to an object that no longer exists. */
	bool IsStale(bool bIncludingIfPendingKill = true, bool bThreadsafeTest = false) const;
	bool IsExplicitlyNull() const { return ObjectIndex == INDEX_NONE; }

	bool operator==(const FWeakObjectPtr& Other) const;
	bool operator!=(const FWeakObjectPtr& Other) const { return !(*this == Other); }
	friend uint32 GetTypeHash(const FWeakObjectPtr& WeakObjectPtr) { return static_cast<uint32>(WeakObjectPtr.ObjectIndex) ^ static_cast<uint32>(WeakObjectPtr.ObjectSerialNumber); }

private:
	int32 ObjectIndex = INDEX_NONE;
	int32 ObjectSerialNumber = 0;
};
