#pragma once

// What the header tool's .gen.cpp files need to register their reflection data.
#include "CoreMinimal.h"
#include "UObject/Class.h"
#include "UObject/Object.h"
#include "UObject/ObjectPtr.h"
#include "UObject/UnrealType.h"
#include "UObject/EnumProperty.h"
#include "UObject/TextProperty.h"
#include "Templates/SubclassOf.h"

namespace UE::CoreUObject::Private
{
	/** Fills in a native class: called once from T::StaticClass(); Out is set before properties are added. */
	COREUOBJECT_API void ConstructNativeClass(UClass*& Out, const TCHAR* Name, const TCHAR* PackageName, UClass* SuperClass, int32 Size, EClassFlags Flags, FName ConfigName, UClass::ClassConstructorType Constructor);
	COREUOBJECT_API void ConstructNativeStruct(UScriptStruct*& Out, const TCHAR* Name, const TCHAR* PackageName, UScriptStruct* SuperStruct, UScriptStruct::ICppStructOps* Ops);
	COREUOBJECT_API void ConstructNativeEnum(UEnum*& Out, const TCHAR* Name, const TCHAR* PackageName, UEnum::ECppForm Form, const TArray<TPair<FName, int64>>& Names);
	/** A native class by its name without prefix, e.g. "Engine"; fatal when none is registered. */
	COREUOBJECT_API UClass* FindNativeClass(const TCHAR* Name);

	/** Registers a type at library load by calling its accessor, as the engine's compiled-in registration does. */
	struct FRegisterCompiledInInfo
	{
		template <typename ReturnType>
		explicit FRegisterCompiledInInfo(ReturnType (*Accessor)())
		{
			Accessor();
		}
	};
}

UClass* Z_Construct_UClass_UObject_NoRegister();
UClass* Z_Construct_UClass_UClass_NoRegister();
UClass* Z_Construct_UClass_UPackage_NoRegister();
UClass* Z_Construct_UClass_UInterface_NoRegister();
