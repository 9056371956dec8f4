#include "UObject/WeakObjectPtr.h"

#include "UObject/Object.h"

void FWeakObjectPtr::operator=(const UObject* Object)
{
	if (Object)
	{
		ObjectIndex = static_cast<int32>(Object->GetUniqueID());
		ObjectSerialNumber = GUObjectArray.IndexToObject(ObjectIndex)->SerialNumber;
	}
	else
	{
		Reset();
	}
}

UObject* FWeakObjectPtr::Get(bool bEvenIfPendingKill) const
{
	const FUObjectItem* Item = GUObjectArray.IndexToObject(ObjectIndex);
	if (!Item || !Item->Object || Item->SerialNumber != ObjectSerialNumber)
	{
		return nullptr;
	}
	UObject* Object = (UObject*)Item->Object;
	return bEvenIfPendingKill || ::IsValid(Object) ? Object : nullptr;
}

bool FWeakObjectPtr::IsValid(bool bEvenIfPendingKill, bool bThreadsafeTest) const
{
	return Get(bEvenIfPendingKill) != nullptr;
}

bool FWeakObjectPtr::IsStale(bool bIncludingIfPendingKill, bool bThreadsafeTest) const
{
	if (ObjectSerialNumber == 0)
	{
		return false;
	}
	const FUObjectItem* Item = GUObjectArray.IndexToObject(ObjectIndex);
	if (!Item || !Item->Object || Item->SerialNumber != ObjectSerialNumber)
	{
		return true;
	}
	return bIncludingIfPendingKill && !::IsValid((UObject*)Item->Object);
}

bool FWeakObjectPtr::operator==(const FWeakObjectPtr& Other) const
{
	return (ObjectIndex == Other.ObjectIndex && ObjectSerialNumber == Other.ObjectSerialNumber) || (!IsValid() && !Other.IsValid());
}
