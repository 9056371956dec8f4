#include "UObject/ObjectRegistry.h"

#include "UObject/Class.h"
#include "UObject/Object.h"
#include "UObject/Package.h"
#include "UObject/UnrealType.h"
#include "Templates/Casts.h"

#include <unordered_map>

thread_local FObjectInitializer* FUObjectRegistry::Current = nullptr;
FUObjectArray GUObjectArray;

namespace
{
	struct FRegistryState
	{
		TArray<FUObjectItem> Items;
		TArray<int32> FreeSlots;
		int32 NextSerial = 1;
		std::unordered_map<const UObjectBase*, TArray<UObjectBase*>> ChildrenByOuter;
		std::unordered_map<const UObjectBase*, std::unordered_map<const UClass*, int32>> SuffixesByParent;
	};

	FRegistryState& State()
	{
		static FRegistryState* Instance = new FRegistryState();
		return *Instance;
	}
}

int32 FUObjectArray::GetObjectArrayNum() const
{
	return State().Items.Num();
}

FUObjectItem* FUObjectArray::IndexToObject(int32 Index)
{
	return State().Items.IsValidIndex(Index) ? &State().Items[Index] : nullptr;
}

const FUObjectItem* FUObjectArray::IndexToObject(int32 Index) const
{
	return State().Items.IsValidIndex(Index) ? &State().Items[Index] : nullptr;
}

TArray<FUObjectItem>& FUObjectRegistry::Items()
{
	return State().Items;
}

void FUObjectRegistry::Add(UObjectBase* Object)
{
	FRegistryState& Registry = State();
	int32 Index;
	if (Registry.FreeSlots.Num() > 0)
	{
		Index = Registry.FreeSlots.Pop();
	}
	else
	{
		Index = Registry.Items.AddDefaulted();
	}
	Registry.Items[Index].Object = Object;
	Registry.Items[Index].SerialNumber = Registry.NextSerial++;
	Object->InternalIndex = Index;
	Registry.ChildrenByOuter[Object->OuterPrivate].Add(Object);
}

void FUObjectRegistry::Remove(UObjectBase* Object)
{
	FRegistryState& Registry = State();
	if (Object->InternalIndex == INDEX_NONE)
	{
		return;
	}
	FUObjectItem& Item = Registry.Items[Object->InternalIndex];
	Item.Object = nullptr;
	Item.SerialNumber = 0;
	Registry.FreeSlots.Add(Object->InternalIndex);
	Object->InternalIndex = INDEX_NONE;
	auto Children = Registry.ChildrenByOuter.find(Object->OuterPrivate);
	if (Children != Registry.ChildrenByOuter.end())
	{
		Children->second.RemoveSingle(Object);
	}
	Registry.SuffixesByParent.erase(Object);
}

UObject* FUObjectRegistry::FindChild(const UObject* Outer, FName Name)
{
	const auto Children = State().ChildrenByOuter.find(Outer);
	if (Children != State().ChildrenByOuter.end())
	{
		for (UObjectBase* Child : Children->second)
		{
			if (Child->GetFName() == Name)
			{
				return (UObject*)Child;
			}
		}
	}
	return nullptr;
}

void FUObjectRegistry::Rename(UObjectBase* Object, UObject* NewOuter, FName NewName)
{
	FRegistryState& Registry = State();
	Registry.ChildrenByOuter[Object->OuterPrivate].RemoveSingle(Object);
	Object->OuterPrivate = NewOuter;
	Object->NamePrivate = NewName;
	Registry.ChildrenByOuter[NewOuter].Add(Object);
}

int32 FUObjectRegistry::NextSuffix(UObject* Parent, const UClass* Class)
{
	return ++State().SuffixesByParent[Parent][Class];
}

void FUObjectRegistry::SetClass(UObjectBase* Object, UClass* Class)
{
	Object->ClassPrivate = Class;
}

UObject* FUObjectRegistry::Construct(UClass* Class, UObject* Outer, FName Name, EObjectFlags Flags, UObject* Template)
{
	FObjectInitializer Initializer;
	Initializer.Class = Class;
	Initializer.Outer = Outer;
	Initializer.Name = Name;
	Initializer.Flags = Flags;
	Initializer.ObjectArchetype = Template;
	Push(Initializer);
	UObject* Object = Class->ClassConstructor(Initializer);
	Pop();
	return Object;
}

UObject* FUObjectRegistry::ConstructIntrinsic(UObject* (*Construct)(), FName Name)
{
	FObjectInitializer Initializer;
	Initializer.Name = Name;
	Initializer.Flags = RF_Public | RF_Standalone | RF_Transient | RF_MarkAsNative;
	Push(Initializer);
	UObject* Object = Construct();
	Pop();
	return Object;
}

UObjectBase::UObjectBase()
{
	FObjectInitializer* Initializer = FUObjectRegistry::Top();
	checkf(Initializer && !Initializer->Obj, TEXT("UObjects are created with NewObject, not constructed directly"));
	Initializer->Obj = this;
	ClassPrivate = Initializer->Class;
	NamePrivate = Initializer->Name;
	OuterPrivate = Initializer->Outer;
	ObjectFlags = Initializer->Flags;
	ArchetypePrivate = Initializer->ObjectArchetype;
	FUObjectRegistry::Add(this);
}

UObjectBase::~UObjectBase()
{
	FUObjectRegistry::Remove(this);
}

bool UObjectBase::IsValidLowLevel() const
{
	const FUObjectItem* Item = GUObjectArray.IndexToObject(InternalIndex);
	return ClassPrivate && Item && Item->Object == this;
}

FObjectInitializer& FObjectInitializer::Get()
{
	FObjectInitializer* Initializer = FUObjectRegistry::Top();
	checkf(Initializer, TEXT("No object initializer found during construction."));
	return *Initializer;
}

UObject* FObjectInitializer::CreateDefaultSubobject(UObject* InOuter, FName SubobjectFName, const UClass* ReturnType, const UClass* ClassToCreateByDefault, bool bIsRequired, bool bIsTransient) const
{
	checkf(InOuter == Obj, TEXT("CreateDefaultSubobject can only be used inside of UObject constructors. UObject constructing subobjects cannot be created using new or placement new operator."));
	checkf(!SubobjectFName.IsNone(), TEXT("Illegal default subobject name: None"));
	checkf(ClassToCreateByDefault->IsChildOf(ReturnType), TEXT("CreateDefaultSubobject: class to create is not a child of the return type"));
	EObjectFlags SubobjectFlags = (InOuter->GetFlags() & (RF_Public | RF_ArchetypeObject | RF_Transactional | RF_Transient)) | RF_DefaultSubObject;
	if (bIsTransient)
	{
		SubobjectFlags |= RF_Transient;
	}
	return StaticConstructObject_Internal(ClassToCreateByDefault, InOuter, SubobjectFName, SubobjectFlags);
}

namespace
{
	/** Points object properties that refer to the template's own subobjects at the copy's subobjects of the same name. */
	void RemapInstancedSubobjects(UObject* Object, const UObject* Template)
	{
		for (TFieldIterator<FObjectProperty> It(Template->GetClass()); It; ++It)
		{
			UObject* Value = It->GetObjectPropertyValue(It->ContainerPtrToValuePtr<void>(Object));
			if (Value && Value->GetOuter() == Template)
			{
				It->SetObjectPropertyValue(It->ContainerPtrToValuePtr<void>(Object), FUObjectRegistry::FindChild(Object, Value->GetFName()));
			}
		}
	}
}

UObject* StaticConstructObject_Internal(const UClass* InClass, UObject* InOuter, FName InName, EObjectFlags InFlags, UObject* InTemplate, bool bCopyTransientsFromClassDefaults, FObjectInstancingGraph* InstanceGraph)
{
	UClass* Class = const_cast<UClass*>(InClass);
	check(Class);
	checkf(!Class->HasAnyClassFlags(CLASS_Abstract) || (InFlags & RF_ClassDefaultObject), TEXT("Unable to create new object: %s %s.%s. Creating an instance of an abstract class is not allowed!"), *Class->GetName(), InOuter ? *InOuter->GetPathName() : TEXT("None"), *InName.ToString());
	checkf(InOuter || Class->IsChildOf(UPackage::StaticClass()), TEXT("Object is not packaged: %s %s"), *Class->GetName(), *InName.ToString());
	checkf(!InOuter || Class->IsValidOuter(InOuter), TEXT("Object %s of class %s cannot be created inside %s"), *InName.ToString(), *Class->GetName(), *InOuter->GetPathName());
	if (InName.IsNone())
	{
		InName = MakeUniqueObjectName(InOuter, Class);
	}
	// The engine replaces an existing object of the same name in place; nothing here relies on that.
	checkf(!FUObjectRegistry::FindChild(InOuter, InName), TEXT("Cannot create %s: an object of that name already exists in %s"), *InName.ToString(), InOuter ? *InOuter->GetPathName() : TEXT("None"));

	UObject* Object = FUObjectRegistry::Construct(Class, InOuter, InName, InFlags, InTemplate);

	if (InTemplate && !InTemplate->HasAnyFlags(RF_ClassDefaultObject) && Object->IsA(InTemplate->GetClass()))
	{
		InTemplate->GetClass()->CopyProperties(Object, InTemplate, !bCopyTransientsFromClassDefaults);
		RemapInstancedSubobjects(Object, InTemplate);
	}
	Object->PostInitProperties();
	return Object;
}

FName MakeUniqueObjectName(UObject* Parent, const UClass* Class, FName InBaseName)
{
	check(Class);
	const FString BaseName = InBaseName.IsNone() ? Class->GetName() : InBaseName.ToString();
	FName TestName;
	do
	{
		// The engine's name numbers are stored plus one, so the first unnamed object gets "_0".
		const int32 NameNumber = Parent ? FUObjectRegistry::NextSuffix(Parent, Class) : ++Class->ClassUnique;
		TestName = FName(*FString::Printf(TEXT("%s_%d"), *BaseName, NameNumber - 1));
	} while (FUObjectRegistry::FindChild(Parent, TestName));
	return TestName;
}

UObject* StaticFindObjectFast(UClass* Class, UObject* InOuter, FName InName, bool ExactClass, bool AnyPackage, EObjectFlags ExclusiveFlags)
{
	UObject* Found = FUObjectRegistry::FindChild(InOuter, InName);
	if (!Found || Found->HasAnyFlags(ExclusiveFlags) || !IsValid(Found))
	{
		return nullptr;
	}
	if (Class && (ExactClass ? Found->GetClass() != Class : !Found->IsA(Class)))
	{
		return nullptr;
	}
	return Found;
}

UObject* StaticFindObject(UClass* Class, UObject* InOuter, const TCHAR* Name, bool ExactClass)
{
	FString Path(Name);
	UObject* Outer = InOuter;
	if (!Outer)
	{
		// A full path: "/Package/Path.Object:Subobject".
		int32 Dot = INDEX_NONE;
		if (!Path.FindChar(TEXT('.'), Dot))
		{
			return StaticFindObjectFast(Class, nullptr, FName(*Path), ExactClass);
		}
		Outer = StaticFindObjectFast(UPackage::StaticClass(), nullptr, FName(*Path.Left(Dot)));
		Path = Path.RightChop(Dot + 1);
		if (!Outer)
		{
			return nullptr;
		}
	}
	TArray<FString> Parts;
	Path.Replace(TEXT(":"), TEXT(".")).ParseIntoArray(Parts, TEXT("."), true);
	for (int32 Index = 0; Index < Parts.Num() - 1 && Outer; ++Index)
	{
		Outer = StaticFindObjectFast(nullptr, Outer, FName(*Parts[Index]));
	}
	return Outer && Parts.Num() > 0 ? StaticFindObjectFast(Class, Outer, FName(*Parts.Last()), ExactClass) : nullptr;
}

UPackage* CreatePackage(UObject* InOuter, const TCHAR* PackageName)
{
	return CreatePackage(PackageName);
}

UPackage* CreatePackage(const TCHAR* PackageName)
{
	const FName Name = PackageName && PackageName[0] ? FName(PackageName) : MakeUniqueObjectName(nullptr, UPackage::StaticClass(), FName(TEXT("/Temp/Untitled")));
	if (UPackage* Existing = Cast<UPackage>(StaticFindObjectFast(UPackage::StaticClass(), nullptr, Name)))
	{
		return Existing;
	}
	return static_cast<UPackage*>(StaticConstructObject_Internal(UPackage::StaticClass(), nullptr, Name, RF_Public));
}

UPackage* GetTransientPackage()
{
	static UPackage* TransientPackage = nullptr;
	if (!TransientPackage)
	{
		TransientPackage = CreatePackage(TEXT("/Engine/Transient"));
		TransientPackage->AddToRoot();
	}
	return TransientPackage;
}

namespace
{
	bool IsInsideGarbage(const UObject* Object)
	{
		for (; Object; Object = Object->GetOuter())
		{
			if (!IsValid(Object))
			{
				return true;
			}
		}
		return false;
	}
}

void CollectGarbage(EObjectFlags KeepFlags, bool bPerformFullPurge)
{
	TArray<UObject*> Doomed;
	for (const FUObjectItem& Item : FUObjectRegistry::Items())
	{
		UObject* Object = (UObject*)Item.Object;
		if (Object && !Object->HasAnyFlags(KeepFlags) && !Object->IsRooted() && IsInsideGarbage(Object))
		{
			Doomed.Add(Object);
		}
	}
	for (UObject* Object : Doomed)
	{
		Object->BeginDestroy();
	}
	for (UObject* Object : Doomed)
	{
		delete Object;
	}
}
