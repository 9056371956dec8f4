#include "UObject/UObjectBaseUtility.h"

#include "CoreGlobals.h"
#include "Misc/ITransaction.h"
#include "UObject/Class.h"
#include "UObject/Package.h"

UPackage::FOnPackageMarkedDirty UPackage::PackageMarkedDirtyEvent;
UPackage::FOnPackageDirtyStateChanged UPackage::PackageDirtyStateChangedEvent;

void UObjectBaseUtility::MarkAsGarbage()
{
	SetGarbageInternal(true);
}

void UObjectBaseUtility::ClearGarbage()
{
	SetGarbageInternal(false);
}

bool UObjectBaseUtility::IsTemplate(EObjectFlags TemplateTypes) const
{
	for (const UObjectBaseUtility* Test = this; Test; Test = Test->GetOuter())
	{
		if (Test->HasAnyFlags(TemplateTypes))
		{
			return true;
		}
	}
	return false;
}

FString UObjectBaseUtility::GetPathName(const UObject* StopOuter) const
{
	if (this == (const UObjectBaseUtility*)StopOuter)
	{
		return TEXT("None");
	}
	const UObject* Outer = GetOuter();
	if (!Outer || Outer == StopOuter)
	{
		return GetName();
	}
	FString Result = Outer->GetPathName(StopOuter);
	// A subobject of a top-level object is separated by ':', deeper ones by '.'.
	const bool bOuterIsPackage = Outer->IsA(UPackage::StaticClass());
	const bool bOuterOuterIsPackage = Outer->GetOuter() && Outer->GetOuter()->IsA(UPackage::StaticClass());
	Result += (!bOuterIsPackage && bOuterOuterIsPackage) ? TEXT(":") : TEXT(".");
	return Result + GetName();
}

FString UObjectBaseUtility::GetFullName(const UObject* StopOuter) const
{
	return GetClass()->GetName() + TEXT(" ") + GetPathName(StopOuter);
}

UPackage* UObjectBaseUtility::GetOutermost() const
{
	const UObjectBaseUtility* Top = this;
	while (Top->GetOuter())
	{
		Top = Top->GetOuter();
	}
	return (UPackage*)(Top->IsA(UPackage::StaticClass()) ? Top : nullptr);
}

bool UObjectBaseUtility::MarkPackageDirty() const
{
	if (!HasAnyFlags(RF_Transient))
	{
		if (UPackage* Package = GetOutermost())
		{
			const bool bIsDirty = Package->IsDirty();
			if (!bIsDirty)
			{
				Package->SetDirtyFlag(true);
			}
			UPackage::PackageMarkedDirtyEvent.Broadcast(Package, bIsDirty);
			return true;
		}
	}
	return true;
}

bool UObjectBaseUtility::IsA(const UClass* SomeBase) const
{
	return SomeBase && GetClass() && GetClass()->IsChildOf(SomeBase);
}

bool UObjectBaseUtility::IsIn(const UObject* SomeOuter) const
{
	for (const UObject* Outer = GetOuter(); Outer; Outer = Outer->GetOuter())
	{
		if (Outer == SomeOuter)
		{
			return true;
		}
	}
	return SomeOuter == nullptr;
}

UObject* UObjectBaseUtility::GetTypedOuter(UClass* Target) const
{
	for (UObject* Outer = GetOuter(); Outer; Outer = Outer->GetOuter())
	{
		if (Outer->IsA(Target))
		{
			return Outer;
		}
	}
	return nullptr;
}

void UPackage::SetDirtyFlag(bool bIsDirty)
{
	if (this != GetTransientPackage())
	{
		if (GUndo && !HasAnyPackageFlags(PKG_ContainsScript | PKG_CompiledIn))
		{
			SetFlags(RF_Transactional);
			GUndo->SaveObject(this);
		}
		const bool bWasDirty = bDirty;
		bDirty = bIsDirty;
		if (bWasDirty != bIsDirty)
		{
			PackageDirtyStateChangedEvent.Broadcast(this);
		}
	}
}
