#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"

class UObject;
class UPackage;
struct FObjectInstancingGraph;

/**
 * The state of an object under construction. The engine's constructors take it (or fetch it with
 * Get()) to create default subobjects; NewObject pushes one for each object it builds.
 */
class COREUOBJECT_API FObjectInitializer
{
public:
	FObjectInitializer() = default;
	FObjectInitializer(const FObjectInitializer&) = delete;
	FObjectInitializer& operator=(const FObjectInitializer&) = delete;

	/** The initializer of the object being constructed; fatal outside a constructor. */
	static FObjectInitializer& Get();

	UObject* GetObj() const { return (UObject*)Obj; }
	UClass* GetClass() const { return Class; }
	UObject* GetArchetype() const { return ObjectArchetype; }

	UObject* CreateDefaultSubobject(UObject* Outer, FName SubobjectFName, const UClass* ReturnType, const UClass* ClassToCreateByDefault, bool bIsRequired = true, bool bIsTransient = false) const;

	template <class TReturnType>
	TReturnType* CreateDefaultSubobject(UObject* Outer, FName SubobjectName, bool bTransient = false) const
	{
		UClass* ReturnType = TReturnType::StaticClass();
		return static_cast<TReturnType*>(CreateDefaultSubobject(Outer, SubobjectName, ReturnType, ReturnType, true, bTransient));
	}

private:
	friend class FUObjectRegistry;
	friend class UObjectBase;

	// The object under construction; held by its base until its constructor has run.
	class UObjectBase* Obj = nullptr;
	UClass* Class = nullptr;
	UObject* Outer = nullptr;
	FName Name;
	EObjectFlags Flags = RF_NoFlags;
	UObject* ObjectArchetype = nullptr;
	FObjectInitializer* Previous = nullptr;
};

COREUOBJECT_API UPackage* GetTransientPackage();
COREUOBJECT_API UPackage* CreatePackage(const TCHAR* PackageName);
COREUOBJECT_API UPackage* CreatePackage(UObject* InOuter, const TCHAR* PackageName);

COREUOBJECT_API UObject* StaticFindObject(UClass* Class, UObject* InOuter, const TCHAR* Name, bool ExactClass = false);
COREUOBJECT_API UObject* StaticFindObjectFast(UClass* Class, UObject* InOuter, FName InName, bool ExactClass = false, bool AnyPackage = false, EObjectFlags ExclusiveFlags = RF_NoFlags);

template <class T>
T* FindObject(UObject* Outer, const TCHAR* Name, bool ExactClass = false)
{
	return (T*)StaticFindObject(T::StaticClass(), Outer, Name, ExactClass);
}

/** A name not used by any other object in Parent: the class name (or BaseName) followed by _N. */
COREUOBJECT_API FName MakeUniqueObjectName(UObject* Parent, const UClass* Class, FName InBaseName = NAME_None);

COREUOBJECT_API UObject* StaticConstructObject_Internal(const UClass* Class, UObject* InOuter = (UObject*)GetTransientPackage(), FName Name = NAME_None, EObjectFlags SetFlags = RF_NoFlags, UObject* Template = nullptr, bool bCopyTransientsFromClassDefaults = false, FObjectInstancingGraph* InstanceGraph = nullptr);

/** Destroys every object marked as garbage, and the objects inside them. Reachability is not traced. */
COREUOBJECT_API void CollectGarbage(EObjectFlags KeepFlags, bool bPerformFullPurge = true);

template <class T>
T* NewObject(UObject* Outer, const UClass* Class, FName Name = NAME_None, EObjectFlags Flags = RF_NoFlags, UObject* Template = nullptr, bool bCopyTransientsFromClassDefaults = false, FObjectInstancingGraph* InInstanceGraph = nullptr)
{
	checkf(Class, TEXT("NewObject called with a nullptr class object"));
	return static_cast<T*>(StaticConstructObject_Internal(Class, Outer, Name, Flags, Template, bCopyTransientsFromClassDefaults, InInstanceGraph));
}

template <class T>
T* NewObject(UObject* Outer = (UObject*)GetTransientPackage())
{
	return static_cast<T*>(StaticConstructObject_Internal(T::StaticClass(), Outer, NAME_None, RF_NoFlags));
}

template <class T>
T* NewObject(UObject* Outer, FName Name, EObjectFlags Flags = RF_NoFlags, UObject* Template = nullptr, bool bCopyTransientsFromClassDefaults = false, FObjectInstancingGraph* InInstanceGraph = nullptr)
{
	return static_cast<T*>(StaticConstructObject_Internal(T::StaticClass(), Outer, Name, Flags, Template, bCopyTransientsFromClassDefaults, InInstanceGraph));
}

template <class T>
const T* GetDefault()
{
	return (const T*)T::StaticClass()->GetDefaultObject();
}

template <class T>
T* GetMutableDefault()
{
	return (T*)T::StaticClass()->GetDefaultObject();
}

/** Delegates of the object system. */
struct COREUOBJECT_API FCoreUObjectDelegates
{
	/** Broadcast by UObject::PostEditChangeProperty, for each object an edit changed. */
	DECLARE_MULTICAST_DELEGATE_TwoParams(FOnObjectPropertyChanged, UObject*, struct FPropertyChangedEvent&);
	static FOnObjectPropertyChanged OnObjectPropertyChanged;
};
