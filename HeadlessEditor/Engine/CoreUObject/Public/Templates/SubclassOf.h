#pragma once

#include "CoreMinimal.h"
#include "UObject/Class.h"

/** A class pointer that only holds T's class or a class derived from it. */
template <class T>
class TSubclassOf
{
public:
	TSubclassOf() = default;
	TSubclassOf(TYPE_OF_NULLPTR) {}
	TSubclassOf(UClass* From)
		: Class(From)
	{
	}
	template <class U, class = std::enable_if_t<std::is_convertible_v<U*, T*>>>
	TSubclassOf(const TSubclassOf<U>& From)
		: Class(*From)
	{
	}
	TSubclassOf& operator=(UClass* From)
	{
		Class = From;
		return *this;
	}

	/** The class, or null when it is not T or a child of T. */
	UClass* Get() const { return Class && Class->IsChildOf(T::StaticClass()) ? Class : nullptr; }
	UClass* operator*() const { return Get(); }
	UClass* operator->() const { return Get(); }
	operator UClass*() const { return Get(); }
	T* GetDefaultObject() const { return Class ? (T*)Get()->GetDefaultObject() : nullptr; }

	bool operator==(const TSubclassOf& Other) const { return Class == Other.Class; }
	bool operator!=(const TSubclassOf& Other) const { return Class != Other.Class; }

private:
	UClass* Class = nullptr;
};
