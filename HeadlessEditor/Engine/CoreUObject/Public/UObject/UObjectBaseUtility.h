#pragma once

#include "CoreMinimal.h"
#include "UObject/UObjectBase.h"

/** Helpers over an object's identity: names, paths, flags and class tests. */
class COREUOBJECT_API UObjectBaseUtility : public UObjectBase
{
public:
	void SetFlags(EObjectFlags NewFlags) { SetFlagsTo(GetFlags() | NewFlags); }
	void ClearFlags(EObjectFlags NewFlags) { SetFlagsTo(GetFlags() & ~NewFlags); }
	bool HasAnyFlags(EObjectFlags FlagsToCheck) const { return (GetFlags() & FlagsToCheck) != 0; }
	bool HasAllFlags(EObjectFlags FlagsToCheck) const { return (GetFlags() & FlagsToCheck) == FlagsToCheck; }
	EObjectFlags GetMaskedFlags(EObjectFlags Mask = RF_AllFlags) const { return GetFlags() & Mask; }

	void MarkAsGarbage();
	void ClearGarbage();
	bool IsUnreachable() const { return false; }
	void AddToRoot() { SetRootedInternal(true); }
	void RemoveFromRoot() { SetRootedInternal(false); }
	bool IsRooted() const { return IsRootedInternal(); }

	/** Whether this is a class default object or an archetype (a template for other objects). */
	bool IsTemplate(EObjectFlags TemplateTypes = RF_ArchetypeObject | RF_ClassDefaultObject) const;

	FString GetName() const { return GetFName().ToString(); }
	void GetName(FString& ResultString) const { ResultString = GetName(); }
	FString GetPathName(const UObject* StopOuter = nullptr) const;
	FString GetFullName(const UObject* StopOuter = nullptr) const;

	UPackage* GetOutermost() const;
	UPackage* GetPackage() const { return GetOutermost(); }
	/** Marks the package holding this object dirty; false when it could not be marked. */
	bool MarkPackageDirty() const;

	bool IsA(const UClass* SomeBase) const;
	template <typename OtherClassType>
	bool IsA(OtherClassType SomeBase) const
	{
		const UClass* SomeBaseClass = SomeBase;
		return IsA(SomeBaseClass);
	}
	template <class T>
	bool IsA() const
	{
		return IsA(T::StaticClass());
	}

	bool IsIn(const UObject* SomeOuter) const;
	UObject* GetTypedOuter(UClass* Target) const;
	template <typename T>
	T* GetTypedOuter() const
	{
		return (T*)GetTypedOuter(T::StaticClass());
	}
};
