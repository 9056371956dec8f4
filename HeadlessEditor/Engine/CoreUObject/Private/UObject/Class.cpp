#include "UObject/Class.h"

#include "UObject/GeneratedCppIncludes.h"
#include "UObject/Interface.h"
#include "UObject/ObjectRegistry.h"
#include "UObject/Package.h"
#include "UObject/UObjectIterator.h"
#include "UObject/UnrealType.h"
#include "Templates/Casts.h"

#include <cstddef>

namespace UE::CoreUObject::Private
{
	UPackage* FindOrCreateScriptPackage(const TCHAR* PackageName)
	{
		const FName Name(PackageName);
		// Making the package class may itself make this package, so ask for it first.
		UClass* PackageClass = UPackage::StaticClass();
		if (UPackage* Existing = (UPackage*)FUObjectRegistry::FindChild(nullptr, Name))
		{
			return Existing;
		}
		UPackage* Package = static_cast<UPackage*>(StaticConstructObject_Internal(PackageClass, nullptr, Name, RF_Public | RF_Standalone));
		Package->SetPackageFlags(PKG_CompiledIn | PKG_ContainsScript);
		Package->AddToRoot();
		return Package;
	}

	void ConstructNativeClass(UClass*& Out, const TCHAR* Name, const TCHAR* PackageName, UClass* SuperClass, int32 Size, EClassFlags Flags, FName ConfigName, UClass::ClassConstructorType Constructor)
	{
		// Out is set first: the class of a class, its package and its properties may ask for it again.
		Out = static_cast<UClass*>(FUObjectRegistry::ConstructIntrinsic([]() -> UObject*
			{ return new UClass(); },
			FName(Name)));
		const EClassFlags Inherited = SuperClass ? (SuperClass->ClassFlags & (CLASS_Transient | CLASS_DefaultConfig | CLASS_Config | CLASS_NotPlaceable | CLASS_Deprecated)) : CLASS_None;
		Out->SetSuperStruct(SuperClass);
		Out->ClassFlags = Flags | Inherited | CLASS_Native | CLASS_Constructed;
		Out->ClassConfigName = !ConfigName.IsNone() || !SuperClass ? ConfigName : SuperClass->ClassConfigName;
		Out->ClassWithin = SuperClass ? SuperClass->ClassWithin : nullptr;
		Out->ClassConstructor = Constructor;
		FUObjectRegistry::SetSizes(Out, Size, 16);
		FUObjectRegistry::SetClass(Out, UClass::StaticClass());
		FUObjectRegistry::Rename(Out, FindOrCreateScriptPackage(PackageName), FName(Name));
	}

	void ConstructNativeStruct(UScriptStruct*& Out, const TCHAR* Name, const TCHAR* PackageName, UScriptStruct* SuperStruct, UScriptStruct::ICppStructOps* Ops)
	{
		Out = static_cast<UScriptStruct*>(FUObjectRegistry::ConstructIntrinsic([]() -> UObject*
			{ return new UScriptStruct(); },
			FName(Name)));
		Out->SetSuperStruct(SuperStruct);
		FUObjectRegistry::SetStructOps(Out, Ops);
		FUObjectRegistry::SetClass(Out, UScriptStruct::StaticClass());
		FUObjectRegistry::Rename(Out, FindOrCreateScriptPackage(PackageName), FName(Name));
	}

	void ConstructNativeEnum(UEnum*& Out, const TCHAR* Name, const TCHAR* PackageName, UEnum::ECppForm Form, const TArray<TPair<FName, int64>>& Names)
	{
		Out = static_cast<UEnum*>(FUObjectRegistry::ConstructIntrinsic([]() -> UObject*
			{ return new UEnum(); },
			FName(Name)));
		FUObjectRegistry::SetEnumNames(Out, Form, Names);
		FUObjectRegistry::SetClass(Out, UEnum::StaticClass());
		FUObjectRegistry::Rename(Out, FindOrCreateScriptPackage(PackageName), FName(Name));
	}

	UClass* FindNativeClass(const TCHAR* Name)
	{
		const FName ClassName(Name);
		for (TObjectIterator<UClass> It; It; ++It)
		{
			if (It->GetFName() == ClassName)
			{
				return *It;
			}
		}
		checkf(false, TEXT("No native class named %s"), Name);
		return nullptr;
	}
}

void FUObjectRegistry::SetSizes(UStruct* Struct, int32 Size, int32 Alignment)
{
	Struct->PropertiesSize = Size;
	Struct->MinAlignment = Alignment;
}

void FUObjectRegistry::SetStructOps(UScriptStruct* Struct, UScriptStruct::ICppStructOps* Ops)
{
	Struct->CppStructOps = Ops;
	SetSizes(Struct, Ops->GetSize(), Ops->GetAlignment());
}

void FUObjectRegistry::SetEnumNames(UEnum* Enum, UEnum::ECppForm Form, const TArray<TPair<FName, int64>>& Names)
{
	Enum->CppForm = Form;
	Enum->Names = Names;
	// The header tool's enums end with the implicit <Enum>_MAX entry.
	int64 MaxValue = -1;
	for (const TPair<FName, int64>& Pair : Names)
	{
		MaxValue = Pair.Value > MaxValue ? Pair.Value : MaxValue;
	}
	const FString Prefix = Form == UEnum::ECppForm::Regular ? FString() : Enum->GetName() + TEXT("::");
	Enum->Names.Add(TPair<FName, int64>(FName(*(Prefix + Enum->GetName() + TEXT("_MAX"))), MaxValue + 1));
}

#define IMPLEMENT_INTRINSIC_CLASS(TClass, TSuperClassExpr, TFlags) \
	UObject* TClass::__NewInstance(const FObjectInitializer& ObjectInitializer) \
	{ \
		return new TClass(); \
	} \
	UClass* TClass::StaticClass() \
	{ \
		static UClass* Class = nullptr; \
		if (!Class) \
		{ \
			/* Making the super class makes the class of classes, which may be this one: make only one. */ \
			UClass* SuperClass = TSuperClassExpr; \
			if (!Class) \
			{ \
				UE::CoreUObject::Private::ConstructNativeClass(Class, &TEXT(#TClass)[1], TEXT("/Script/CoreUObject"), SuperClass, sizeof(TClass), EClassFlags(TFlags | CLASS_Intrinsic), NAME_None, &TClass::__NewInstance); \
			} \
		} \
		return Class; \
	} \
	UClass* Z_Construct_UClass_##TClass##_NoRegister() \
	{ \
		return TClass::StaticClass(); \
	}

IMPLEMENT_INTRINSIC_CLASS(UObject, nullptr, CLASS_None)
IMPLEMENT_INTRINSIC_CLASS(UField, UObject::StaticClass(), CLASS_Abstract)
IMPLEMENT_INTRINSIC_CLASS(UStruct, UField::StaticClass(), CLASS_None)
IMPLEMENT_INTRINSIC_CLASS(UScriptStruct, UStruct::StaticClass(), CLASS_None)
IMPLEMENT_INTRINSIC_CLASS(UClass, UStruct::StaticClass(), CLASS_None)
IMPLEMENT_INTRINSIC_CLASS(UEnum, UField::StaticClass(), CLASS_None)
IMPLEMENT_INTRINSIC_CLASS(UPackage, UObject::StaticClass(), CLASS_None)
IMPLEMENT_INTRINSIC_CLASS(UInterface, UObject::StaticClass(), CLASS_Abstract | CLASS_Interface)

static UE::CoreUObject::Private::FRegisterCompiledInInfo Z_CompiledIn_CoreUObjectClasses(&UClass::StaticClass);

const FString& UField::GetMetaData(const FName& Key) const
{
	static const FString Empty;
	const FString* Found = MetaData.Find(Key);
	return Found ? *Found : Empty;
}

FText UField::GetDisplayNameText() const
{
	const FString& DisplayName = GetMetaData(TEXT("DisplayName"));
	return FText::FromString(DisplayName.IsEmpty() ? FName::NameToDisplayString(GetName(), false) : DisplayName);
}

UStruct::~UStruct()
{
	for (FProperty* Property : OwnProperties)
	{
		delete Property;
	}
}

bool UStruct::IsChildOf(const UStruct* SomeBase) const
{
	for (const UStruct* Struct = this; Struct; Struct = Struct->GetSuperStruct())
	{
		if (Struct == SomeBase)
		{
			return true;
		}
	}
	return false;
}

FProperty* UStruct::FindPropertyByName(FName InName) const
{
	for (TFieldIterator<FProperty> It(this); It; ++It)
	{
		if (It->GetFName() == InName)
		{
			return *It;
		}
	}
	return nullptr;
}

void UStruct::AddCppProperty(FProperty* Property)
{
	OwnProperties.Add(Property);
}

void UStruct::CopyProperties(void* Dest, const void* Src, bool bSkipTransient) const
{
	for (TFieldIterator<FProperty> It(this); It; ++It)
	{
		if (!(bSkipTransient && It->HasAnyPropertyFlags(CPF_Transient)))
		{
			It->CopyCompleteValue_InContainer(Dest, Src);
		}
	}
}

UScriptStruct::~UScriptStruct()
{
	delete CppStructOps;
}

void UScriptStruct::InitializeStruct(void* Dest, int32 ArrayDim) const
{
	for (int32 Index = 0; Index < ArrayDim; ++Index)
	{
		CppStructOps->Construct(static_cast<uint8*>(Dest) + Index * CppStructOps->GetSize());
	}
}

void UScriptStruct::DestroyStruct(void* Dest, int32 ArrayDim) const
{
	for (int32 Index = 0; Index < ArrayDim; ++Index)
	{
		CppStructOps->Destruct(static_cast<uint8*>(Dest) + Index * CppStructOps->GetSize());
	}
}

void UScriptStruct::CopyScriptStruct(void* Dest, void const* Src, int32 ArrayDim) const
{
	CppStructOps->Copy(Dest, Src, ArrayDim);
}

bool UScriptStruct::CompareScriptStruct(const void* A, const void* B, uint32 PortFlags) const
{
	bool bResult = false;
	if (CppStructOps->Identical(A, B, PortFlags, bResult))
	{
		return bResult;
	}
	for (TFieldIterator<FProperty> It(this); It; ++It)
	{
		if (!It->Identical_InContainer(A, B, 0, PortFlags))
		{
			return false;
		}
	}
	return true;
}

UObject* UClass::GetDefaultObject(bool bCreateIfNeeded) const
{
	if (!ClassDefaultObject && bCreateIfNeeded)
	{
		if (UClass* SuperClass = GetSuperClass())
		{
			SuperClass->GetDefaultObject();
		}
		const FName Name(*(FString(TEXT("Default__")) + GetName()));
		ClassDefaultObject = StaticConstructObject_Internal(this, GetOuter(), Name, RF_Public | RF_ClassDefaultObject | RF_ArchetypeObject);
	}
	return ClassDefaultObject;
}

const TCHAR* UClass::GetPrefixCPP() const
{
	for (const UClass* Class = this; Class; Class = Class->GetSuperClass())
	{
		if (Class->GetFName() == FName(TEXT("Actor")) && Class->GetOuter() && Class->GetOuter()->GetFName() == FName(TEXT("/Script/Engine")))
		{
			return TEXT("A");
		}
	}
	return TEXT("U");
}

bool UClass::IsValidOuter(const UObject* Outer) const
{
	return !ClassWithin || (Outer && Outer->IsA(ClassWithin));
}

FName UEnum::GetNameByIndex(int32 Index) const
{
	return Names.IsValidIndex(Index) ? Names[Index].Key : FName();
}

int64 UEnum::GetValueByIndex(int32 Index) const
{
	check(Names.IsValidIndex(Index));
	return Names[Index].Value;
}

int32 UEnum::GetIndexByValue(int64 InValue) const
{
	for (int32 Index = 0; Index < Names.Num(); ++Index)
	{
		if (Names[Index].Value == InValue)
		{
			return Index;
		}
	}
	return INDEX_NONE;
}

int32 UEnum::GetIndexByName(const FName InName) const
{
	const FString Wanted = InName.ToString();
	for (int32 Index = 0; Index < Names.Num(); ++Index)
	{
		// Either the full "EType::Name" or the short name matches, as in the engine.
		if (Names[Index].Key == InName || GetNameStringByIndex(Index) == Wanted)
		{
			return Index;
		}
	}
	return INDEX_NONE;
}

int64 UEnum::GetValueByName(const FName InName) const
{
	const int32 Index = GetIndexByName(InName);
	return Index == INDEX_NONE ? INDEX_NONE : Names[Index].Value;
}

FName UEnum::GetNameByValue(int64 InValue) const
{
	return GetNameByIndex(GetIndexByValue(InValue));
}

FString UEnum::GetNameStringByIndex(int32 InIndex) const
{
	if (!Names.IsValidIndex(InIndex))
	{
		return FString();
	}
	const FString Full = Names[InIndex].Key.ToString();
	const int32 Separator = Full.Find(TEXT("::"), ESearchCase::CaseSensitive, ESearchDir::FromEnd);
	return Separator == INDEX_NONE ? Full : Full.RightChop(Separator + 2);
}

FString UEnum::GetNameStringByValue(int64 InValue) const
{
	return GetNameStringByIndex(GetIndexByValue(InValue));
}

FText UEnum::GetDisplayNameTextByIndex(int32 InIndex) const
{
	const FString DisplayName = GetMetaData(TEXT("DisplayName"), InIndex);
	return FText::FromString(DisplayName.IsEmpty() ? GetNameStringByIndex(InIndex) : DisplayName);
}

FText UEnum::GetDisplayNameTextByValue(int64 InValue) const
{
	return GetDisplayNameTextByIndex(GetIndexByValue(InValue));
}

int64 UEnum::GetMaxEnumValue() const
{
	int64 MaxValue = 0;
	for (const TPair<FName, int64>& Pair : Names)
	{
		MaxValue = Pair.Value > MaxValue ? Pair.Value : MaxValue;
	}
	return MaxValue;
}

FString UEnum::GetMetaData(const TCHAR* Key, int32 NameIndex) const
{
	if (NameIndex == INDEX_NONE)
	{
		return UField::GetMetaData(Key);
	}
	return UField::GetMetaData(FName(*(GetNameStringByIndex(NameIndex) + TEXT(".") + Key)));
}

bool UEnum::HasMetaData(const TCHAR* Key, int32 NameIndex) const
{
	if (NameIndex == INDEX_NONE)
	{
		return UField::HasMetaData(Key);
	}
	return UField::HasMetaData(FName(*(GetNameStringByIndex(NameIndex) + TEXT(".") + Key)));
}

#pragma GCC diagnostic ignored "-Winvalid-offsetof"

#define IMPLEMENT_CORE_STRUCT(TStruct, Name, ...) \
	template <> \
	UScriptStruct* StaticStruct<TStruct>() \
	{ \
		static UScriptStruct* Struct = nullptr; \
		if (!Struct) \
		{ \
			UE::CoreUObject::Private::ConstructNativeStruct(Struct, TEXT(Name), TEXT("/Script/CoreUObject"), nullptr, new UScriptStruct::TCppStructOps<TStruct>()); \
			__VA_ARGS__ \
		} \
		return Struct; \
	}

#define CORE_STRUCT_MEMBER(PropertyClass, TStruct, Member) Struct->AddCppProperty(new PropertyClass(Struct, TEXT(#Member), EPropertyFlags(CPF_Edit | CPF_BlueprintVisible | CPF_NativeAccessSpecifierPublic), static_cast<int32>(offsetof(TStruct, Member))));

IMPLEMENT_CORE_STRUCT(FVector, "Vector", CORE_STRUCT_MEMBER(FDoubleProperty, FVector, X) CORE_STRUCT_MEMBER(FDoubleProperty, FVector, Y) CORE_STRUCT_MEMBER(FDoubleProperty, FVector, Z))
IMPLEMENT_CORE_STRUCT(FRotator, "Rotator", CORE_STRUCT_MEMBER(FDoubleProperty, FRotator, Pitch) CORE_STRUCT_MEMBER(FDoubleProperty, FRotator, Yaw) CORE_STRUCT_MEMBER(FDoubleProperty, FRotator, Roll))
IMPLEMENT_CORE_STRUCT(FVector2D, "Vector2D", CORE_STRUCT_MEMBER(FDoubleProperty, FVector2D, X) CORE_STRUCT_MEMBER(FDoubleProperty, FVector2D, Y))
IMPLEMENT_CORE_STRUCT(FLinearColor, "LinearColor", CORE_STRUCT_MEMBER(FFloatProperty, FLinearColor, R) CORE_STRUCT_MEMBER(FFloatProperty, FLinearColor, G) CORE_STRUCT_MEMBER(FFloatProperty, FLinearColor, B) CORE_STRUCT_MEMBER(FFloatProperty, FLinearColor, A))
IMPLEMENT_CORE_STRUCT(FColor, "Color", CORE_STRUCT_MEMBER(FByteProperty, FColor, B) CORE_STRUCT_MEMBER(FByteProperty, FColor, G) CORE_STRUCT_MEMBER(FByteProperty, FColor, R) CORE_STRUCT_MEMBER(FByteProperty, FColor, A))
