#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"

class UPackage;
class UObject;

COREUOBJECT_API bool IsValid(const UObject* Test);

/** The identity of an object: its class, name, outer and flags, and its slot in the object array. */
class COREUOBJECT_API UObjectBase
{
	friend class FUObjectRegistry;
	friend COREUOBJECT_API bool IsValid(const UObject* Test);

protected:
	/** Takes the identity from the object initializer that is constructing this object. */
	UObjectBase();

public:
	UObjectBase(const UObjectBase&) = delete;
	UObjectBase& operator=(const UObjectBase&) = delete;
	virtual ~UObjectBase();

	UClass* GetClass() const { return ClassPrivate; }
	UObject* GetOuter() const { return OuterPrivate; }
	FName GetFName() const { return NamePrivate; }
	EObjectFlags GetFlags() const { return ObjectFlags; }
	uint32 GetUniqueID() const { return static_cast<uint32>(InternalIndex); }
	bool IsValidLowLevel() const;
	bool IsValidLowLevelFast(bool bRecursive = true) const { return IsValidLowLevel(); }

protected:
	void SetFlagsTo(EObjectFlags NewFlags) { ObjectFlags = NewFlags; }
	bool IsGarbageInternal() const { return bGarbage; }
	void SetGarbageInternal(bool bInGarbage) { bGarbage = bInGarbage; }
	bool IsRootedInternal() const { return bRooted; }
	void SetRootedInternal(bool bInRooted) { bRooted = bInRooted; }
	UObject* GetExplicitArchetype() const { return ArchetypePrivate; }

private:
	EObjectFlags ObjectFlags = RF_NoFlags;
	int32 InternalIndex = INDEX_NONE;
	UClass* ClassPrivate = nullptr;
	FName NamePrivate;
	UObject* OuterPrivate = nullptr;
	// The template given when the object was created; null means "derive it as the engine does".
	UObject* ArchetypePrivate = nullptr;
	bool bGarbage = false;
	bool bRooted = false;
};
