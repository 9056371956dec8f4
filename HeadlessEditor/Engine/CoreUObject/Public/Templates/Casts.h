#pragma once

#include "CoreMinimal.h"
#include "UObject/Class.h"
#include "UObject/Object.h"
#include "UObject/ObjectPtr.h"
#include "UObject/WeakObjectPtr.h"

namespace ECastCheckedType
{
	enum Type
	{
		NullAllowed,
		NullChecked
	};
}

namespace UE::CoreUObject::Private
{
	[[noreturn]] COREUOBJECT_API void CastCheckedFailed(const UObject* Src, const UClass* To);
}

/** The object as a To, or null when it is null or not a To. */
template <class To, class From>
To* Cast(From* Src)
{
	return Src && ((const UObject*)Src)->IsA(To::StaticClass()) ? (To*)Src : nullptr;
}
template <class To, class From>
const To* Cast(const From* Src)
{
	return Cast<To>(const_cast<From*>(Src));
}
template <class To, class From>
To* Cast(const TObjectPtr<From>& Src)
{
	return Cast<To>(Src.Get());
}
template <class To, class From>
To* Cast(const TWeakObjectPtr<From>& Src)
{
	return Cast<To>(Src.Get());
}

/** Cast that is fatal when the object is not a To (or null, when NullChecked). */
template <class To, class From>
To* CastChecked(From* Src, ECastCheckedType::Type CheckType = ECastCheckedType::NullChecked)
{
	if (Src == nullptr)
	{
		if (CheckType == ECastCheckedType::NullChecked)
		{
			UE::CoreUObject::Private::CastCheckedFailed(nullptr, To::StaticClass());
		}
		return nullptr;
	}
	To* Result = Cast<To>(Src);
	if (!Result)
	{
		UE::CoreUObject::Private::CastCheckedFailed((const UObject*)Src, To::StaticClass());
	}
	return Result;
}
template <class To, class From>
To* CastChecked(const TObjectPtr<From>& Src, ECastCheckedType::Type CheckType = ECastCheckedType::NullChecked)
{
	return CastChecked<To>(Src.Get(), CheckType);
}
template <class T, class U>
T* CastChecked(const TWeakObjectPtr<U>& Src, ECastCheckedType::Type CheckType = ECastCheckedType::NullChecked)
{
	return CastChecked<T>(Src.Get(), CheckType);
}

template <class To, class From>
To* ExactCast(From* Src)
{
	return Src && ((const UObject*)Src)->GetClass() == To::StaticClass() ? (To*)Src : nullptr;
}
