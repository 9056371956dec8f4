#include "UObject/Object.h"

#include "CoreGlobals.h"
#include "Misc/ITransaction.h"
#include "UObject/Class.h"
#include "UObject/ObjectRegistry.h"
#include "UObject/Package.h"
#include "UObject/UnrealType.h"

UObject::UObject() = default;

UObject::UObject(const FObjectInitializer& ObjectInitializer)
{
}

UObject::~UObject() = default;

UObject* UObject::CreateDefaultSubobject(FName SubobjectFName, UClass* ReturnType, UClass* ClassToCreateByDefault, bool bIsRequired, bool bIsTransient)
{
	FObjectInitializer* Initializer = FUObjectRegistry::Top();
	checkf(Initializer && Initializer->GetObj() == this, TEXT("CreateDefaultSubobject can only be used inside of UObject constructors. UObject constructing subobjects cannot be created using new or placement new operator."));
	return Initializer->CreateDefaultSubobject(this, SubobjectFName, ReturnType, ClassToCreateByDefault, bIsRequired, bIsTransient);
}

bool UObject::CanModify() const
{
	return IsValid(this) && !HasAnyFlags(RF_BeginDestroyed | RF_FinishDestroyed);
}

bool UObject::Modify(bool bAlwaysMarkDirty)
{
	bool bSavedToTransactionBuffer = false;
	if (CanModify())
	{
		// Compiled-in packages (classes and their defaults) are neither transacted nor dirtied.
		const UPackage* Package = GetOutermost();
		if (!Package || !Package->HasAnyPackageFlags(PKG_ContainsScript | PKG_CompiledIn))
		{
			if (GUndo && HasAnyFlags(RF_Transactional))
			{
				if (bAlwaysMarkDirty)
				{
					MarkPackageDirty();
				}
				GUndo->SaveObject(this);
				bSavedToTransactionBuffer = true;
			}
			else if (bAlwaysMarkDirty)
			{
				MarkPackageDirty();
			}
		}
	}
	return bSavedToTransactionBuffer;
}

FCoreUObjectDelegates::FOnObjectPropertyChanged FCoreUObjectDelegates::OnObjectPropertyChanged;

void UObject::PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent)
{
	FCoreUObjectDelegates::OnObjectPropertyChanged.Broadcast(this, PropertyChangedEvent);
}

bool UObject::CanEditChange(const FProperty* InProperty) const
{
	return InProperty && !InProperty->HasAnyPropertyFlags(CPF_EditConst);
}

UWorld* UObject::GetWorld() const
{
	return GetOuter() ? GetOuter()->GetWorld() : nullptr;
}

UObject* UObject::GetArchetype() const
{
	if (UObject* Explicit = GetExplicitArchetype())
	{
		return Explicit;
	}
	if (HasAnyFlags(RF_ClassDefaultObject))
	{
		UClass* SuperClass = GetClass()->GetSuperClass();
		return SuperClass ? SuperClass->GetDefaultObject() : nullptr;
	}
	// A subobject's archetype is the subobject of the same name in its outer's archetype.
	UObject* Outer = GetOuter();
	if (Outer && !Outer->IsA(UPackage::StaticClass()))
	{
		if (UObject* OuterArchetype = Outer->GetArchetype())
		{
			UObject* Match = FUObjectRegistry::FindChild(OuterArchetype, GetFName());
			if (Match && IsA(Match->GetClass()))
			{
				return Match;
			}
		}
	}
	return GetClass()->GetDefaultObject();
}

bool UObject::IsBasedOnArchetype(const UObject* const SomeObject) const
{
	for (UObject* Template = GetArchetype(); Template; Template = Template->GetArchetype())
	{
		if (Template == SomeObject)
		{
			return true;
		}
	}
	return false;
}

bool UObject::IsAsset() const
{
	return HasAnyFlags(RF_Public) && !HasAnyFlags(RF_Transient | RF_ClassDefaultObject) && GetOuter() && GetOuter()->IsA(UPackage::StaticClass()) && GetOuter() != (UObject*)GetTransientPackage();
}

bool IsValid(const UObject* Test)
{
	return Test && !Test->IsGarbageInternal() && !Test->HasAnyFlags(RF_BeginDestroyed);
}
