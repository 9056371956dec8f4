#pragma once

#include "CoreTypes.h"

class UObjectBase;

/** One slot of the global object array; the serial number changes when the slot's object is destroyed. */
struct FUObjectItem
{
	UObjectBase* Object = nullptr;
	int32 SerialNumber = 0;
};

/** Every live object, indexed by its internal index; weak pointers hold an index and a serial number. */
class COREUOBJECT_API FUObjectArray
{
public:
	int32 GetObjectArrayNum() const;
	FUObjectItem* IndexToObject(int32 Index);
	const FUObjectItem* IndexToObject(int32 Index) const;
};

extern COREUOBJECT_API FUObjectArray GUObjectArray;
