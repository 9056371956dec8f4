#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"
#include "UObject/UObjectBaseUtility.h"
#include "UObject/UObjectGlobals.h"

class FProperty;
class UWorld;
struct FPropertyChangedEvent;

/** The base class of every reflected object. */
class COREUOBJECT_API UObject : public UObjectBaseUtility
{
	DECLARE_CLASS_INTRINSIC_NO_CTOR(UObject, UObject, COREUOBJECT_API)

public:
	UObject();
	UObject(const FObjectInitializer& ObjectInitializer);
	virtual ~UObject() override;

	/** Creates a subobject of this object while it is being constructed. */
	UObject* CreateDefaultSubobject(FName SubobjectFName, UClass* ReturnType, UClass* ClassToCreateByDefault, bool bIsRequired, bool bIsTransient);

	template <class TReturnType>
	TReturnType* CreateDefaultSubobject(FName SubobjectName, bool bTransient = false)
	{
		UClass* ReturnType = TReturnType::StaticClass();
		return static_cast<TReturnType*>(CreateDefaultSubobject(SubobjectName, ReturnType, ReturnType, true, bTransient));
	}

	template <class TReturnType, class TClassToConstructByDefault>
	TReturnType* CreateDefaultSubobject(FName SubobjectName, bool bTransient = false)
	{
		return static_cast<TReturnType*>(CreateDefaultSubobject(SubobjectName, TReturnType::StaticClass(), TClassToConstructByDefault::StaticClass(), true, bTransient));
	}

	/** Records the object in the open transaction and marks its package dirty, as the editor does before a change. */
	virtual bool Modify(bool bAlwaysMarkDirty = true);
	bool CanModify() const;

	virtual void PostInitProperties() {}
	virtual void BeginDestroy() {}
	virtual void PreEditChange(FProperty* PropertyAboutToChange) {}
	virtual void PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent);
	virtual bool CanEditChange(const FProperty* InProperty) const;

	/** The world this object lives in, or null; actors and components override it. */
	virtual UWorld* GetWorld() const;

	/** The object this one was created from: the given template, the matching subobject of the outer's archetype, or the class default object. */
	UObject* GetArchetype() const;
	bool IsBasedOnArchetype(const UObject* const SomeObject) const;
	bool IsSelected() const { return false; }
	bool IsAsset() const;

	virtual FString GetDetailedInfoInternal() const { return TEXT("No_Detailed_Info_Specified"); }
};

/** True when the object exists and is not pending destruction. */
COREUOBJECT_API bool IsValid(const UObject* Test);
