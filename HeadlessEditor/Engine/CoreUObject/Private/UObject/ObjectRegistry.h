#pragma once

#include "CoreMinimal.h"
#include "UObject/UObjectArray.h"
#include "UObject/Class.h"
#include "UObject/UObjectGlobals.h"

class UObjectBase;

/**
 * The object system's bookkeeping: the object array, the objects by outer and name, and the stack
 * of initializers of objects under construction.
 */
class FUObjectRegistry
{
public:
	static void Add(UObjectBase* Object);
	static void Remove(UObjectBase* Object);
	static UObject* FindChild(const UObject* Outer, FName Name);
	static void Rename(UObjectBase* Object, UObject* NewOuter, FName NewName);
	static int32 NextSuffix(UObject* Parent, const UClass* Class);

	static FObjectInitializer* Top() { return Current; }
	static void Push(FObjectInitializer& Initializer)
	{
		Initializer.Previous = Current;
		Current = &Initializer;
	}
	static void Pop() { Current = Current->Previous; }

	static TArray<FUObjectItem>& Items();
	static UObject* Construct(UClass* Class, UObject* Outer, FName Name, EObjectFlags Flags, UObject* Template);
	static UObject* ConstructIntrinsic(UObject* (*Construct)(), FName Name);
	static void SetClass(UObjectBase* Object, UClass* Class);
	static void SetSizes(UStruct* Struct, int32 Size, int32 Alignment);
	static void SetStructOps(UScriptStruct* Struct, UScriptStruct::ICppStructOps* Ops);
	static void SetEnumNames(UEnum* Enum, UEnum::ECppForm Form, const TArray<TPair<FName, int64>>& Names);

private:
	static thread_local FObjectInitializer* Current;
};
