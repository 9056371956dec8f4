#pragma once

#include "CoreMinimal.h"
#include "UObject/Class.h"
#include "UObject/Object.h"
#include "UObject/UObjectArray.h"

/** Walks every live object of class T (or derived), in creation-slot order; skips class default objects. */
template <class T>
class TObjectIterator
{
public:
	TObjectIterator()
	{
		Advance();
	}

	explicit operator bool() const { return Index < GUObjectArray.GetObjectArrayNum(); }
	bool operator!() const { return !(bool)*this; }
	void operator++()
	{
		++Index;
		Advance();
	}
	T* operator*() const { return (T*)GUObjectArray.IndexToObject(Index)->Object; }
	T* operator->() const { return **this; }

private:
	void Advance()
	{
		for (; Index < GUObjectArray.GetObjectArrayNum(); ++Index)
		{
			const UObject* Object = (const UObject*)GUObjectArray.IndexToObject(Index)->Object;
			if (Object && IsValid(Object) && !Object->HasAnyFlags(RF_ClassDefaultObject) && Object->IsA(T::StaticClass()))
			{
				return;
			}
		}
	}

	int32 Index = 0;
};
