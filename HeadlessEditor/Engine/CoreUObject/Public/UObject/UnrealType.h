#pragma once

#include "CoreMinimal.h"
#include "UObject/Class.h"
#include "UObject/Object.h"

#include <type_traits>

class FOutputDevice;

/** Port flags for text export and import. */
enum EPropertyPortFlags
{
	PPF_None = 0x00000000,
	PPF_Localized = 0x00000001,
	PPF_Delimited = 0x00000002,
	PPF_Copy = 0x00000008,
	PPF_PropertyWindow = 0x00000080,
};

/** What kind of change a property edit made; constants, not an enum, as the engine has them. */
namespace EPropertyChangeType
{
	typedef uint32 Type;

	const Type Unspecified = 1 << 0;
	const Type ArrayAdd = 1 << 1;
	const Type ArrayRemove = 1 << 2;
	const Type ArrayClear = 1 << 3;
	const Type ValueSet = 1 << 4;
	const Type Duplicate = 1 << 5;
	const Type Interactive = 1 << 6;
	const Type Redirected = 1 << 7;
	const Type ArrayMove = 1 << 8;
}

/**
 * A reflected member of a struct or class: its name, type, offset, flags and metadata. The engine
 * derives it from FField; the headless editor needs no field base of its own.
 */
class COREUOBJECT_API FProperty
{
public:
	FProperty(UStruct* InOwner, const TCHAR* InName, EPropertyFlags InFlags, int32 InOffset, int32 InElementSize, int32 InAlignment);
	virtual ~FProperty();
	FProperty(const FProperty&) = delete;
	FProperty& operator=(const FProperty&) = delete;

	FName GetFName() const { return NamePrivate; }
	FString GetName() const { return NamePrivate.ToString(); }
	FString GetNameCPP() const { return GetName(); }
	FText GetDisplayNameText() const;
	/** The engine's type name of this property class, e.g. "IntProperty". */
	virtual FString GetClassName() const = 0;

	template <class T>
	bool IsA() const
	{
		return dynamic_cast<const T*>(this) != nullptr;
	}

	virtual FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const = 0;

	int32 GetOffset_ForInternal() const { return Offset_Internal; }
	int32 GetOffset_ForUFunction() const { return Offset_Internal; }
	int32 GetSize() const { return ElementSize * ArrayDim; }
	int32 GetMinAlignment() const { return MinAlignment; }

	EPropertyFlags GetPropertyFlags() const { return PropertyFlags; }
	bool HasAnyPropertyFlags(uint64 FlagsToCheck) const { return (uint64(PropertyFlags) & FlagsToCheck) != 0; }
	bool HasAllPropertyFlags(uint64 FlagsToCheck) const { return (uint64(PropertyFlags) & FlagsToCheck) == FlagsToCheck; }
	void SetPropertyFlags(EPropertyFlags NewFlags) { PropertyFlags |= NewFlags; }
	void ClearPropertyFlags(EPropertyFlags NewFlags) { PropertyFlags = PropertyFlags & ~NewFlags; }

	bool HasMetaData(const TCHAR* Key) const { return MetaData.Contains(FName(Key)); }
	bool HasMetaData(const FName& Key) const { return MetaData.Contains(Key); }
	const FString& GetMetaData(const TCHAR* Key) const { return GetMetaData(FName(Key)); }
	const FString& GetMetaData(const FName& Key) const;
	void SetMetaData(const TCHAR* Key, const TCHAR* InValue) { MetaData.Add(FName(Key), FString(InValue)); }
	bool GetBoolMetaData(const FName& Key) const;

	/** The struct or class declaring this property. */
	UStruct* GetOwnerStruct() const { return OwnerStruct; }
	UClass* GetOwnerClass() const;

	template <typename ValueType>
	ValueType* ContainerPtrToValuePtr(void* ContainerPtr, int32 ArrayIndex = 0) const
	{
		return (ValueType*)((uint8*)ContainerPtr + Offset_Internal + ElementSize * ArrayIndex);
	}
	template <typename ValueType>
	const ValueType* ContainerPtrToValuePtr(const void* ContainerPtr, int32 ArrayIndex = 0) const
	{
		return (const ValueType*)((const uint8*)ContainerPtr + Offset_Internal + ElementSize * ArrayIndex);
	}
	template <typename ValueType>
	ValueType* ContainerPtrToValuePtr(UObject* ContainerPtr, int32 ArrayIndex = 0) const
	{
		return ContainerPtrToValuePtr<ValueType>((void*)ContainerPtr, ArrayIndex);
	}
	template <typename ValueType>
	const ValueType* ContainerPtrToValuePtr(const UObject* ContainerPtr, int32 ArrayIndex = 0) const
	{
		return ContainerPtrToValuePtr<ValueType>((const void*)ContainerPtr, ArrayIndex);
	}

	/** Writes the value as text, as copy and paste and the details panel show it. */
	void ExportTextItem_Direct(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope = nullptr) const;
	/** Reads a value from text; returns the position after what was read, or null on error. */
	const TCHAR* ImportText_Direct(const TCHAR* Buffer, void* PropertyPtr, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText = nullptr) const;

	virtual bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const = 0;
	bool Identical_InContainer(const void* A, const void* B, int32 ArrayIndex = 0, uint32 PortFlags = 0) const;
	void CopyCompleteValue(void* Dest, void const* Src) const;
	void CopyCompleteValue_InContainer(void* Dest, void const* Src) const;
	void CopySingleValue(void* Dest, void const* Src) const { CopyValuesInternal(Dest, Src, 1); }
	virtual void InitializeValue(void* Dest) const = 0;
	virtual void DestroyValue(void* Dest) const = 0;

protected:
	friend class FArrayProperty;
	void SetOffset_Internal(int32 NewOffset) { Offset_Internal = NewOffset; }
	virtual void CopyValuesInternal(void* Dest, void const* Src, int32 Count) const = 0;
	virtual void ExportText_Internal(FString& ValueStr, const void* PropertyValue, int32 PortFlags) const = 0;
	virtual const TCHAR* ImportText_Internal(const TCHAR* Buffer, void* Data, int32 PortFlags) const = 0;

public:
	int32 ArrayDim = 1;
	int32 ElementSize = 0;
	EPropertyFlags PropertyFlags = CPF_None;

private:
	UStruct* OwnerStruct = nullptr;
	FName NamePrivate;
	int32 Offset_Internal = 0;
	int32 MinAlignment = 1;
	TMap<FName, FString> MetaData;
};

template <typename FieldType>
FieldType* CastField(FProperty* Src)
{
	return dynamic_cast<FieldType*>(Src);
}
template <typename FieldType>
const FieldType* CastField(const FProperty* Src)
{
	return dynamic_cast<const FieldType*>(Src);
}
template <typename FieldType>
FieldType* CastFieldChecked(FProperty* Src)
{
	FieldType* Result = dynamic_cast<FieldType*>(Src);
	checkf(Result, TEXT("CastFieldChecked failed"));
	return Result;
}

/** A property whose value is a native C++ type compared with == and copied with =. */
template <typename InTCppType>
class TProperty : public FProperty
{
public:
	typedef InTCppType TCppType;

	TProperty(UStruct* InOwner, const TCHAR* InName, EPropertyFlags InFlags, int32 InOffset)
		: FProperty(InOwner, InName, InFlags, InOffset, sizeof(TCppType), alignof(TCppType))
	{
	}

	static const TCppType& GetPropertyValue(void const* A) { return *(const TCppType*)A; }
	static void SetPropertyValue(void* A, const TCppType& Value) { *(TCppType*)A = Value; }
	static TCppType* GetPropertyValuePtr(void* A) { return (TCppType*)A; }
	const TCppType& GetPropertyValue_InContainer(void const* A, int32 ArrayIndex = 0) const { return GetPropertyValue(ContainerPtrToValuePtr<void>(A, ArrayIndex)); }
	void SetPropertyValue_InContainer(void* A, const TCppType& Value, int32 ArrayIndex = 0) const { SetPropertyValue(ContainerPtrToValuePtr<void>(A, ArrayIndex), Value); }

	virtual bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override
	{
		if constexpr (THasEquality<TCppType>::value)
		{
			const TCppType Default{};
			return GetPropertyValue(A) == (B ? GetPropertyValue(B) : Default);
		}
		return false;
	}
	virtual void InitializeValue(void* Dest) const override { new (Dest) TCppType(); }
	virtual void DestroyValue(void* Dest) const override { static_cast<TCppType*>(Dest)->~TCppType(); }

protected:
	virtual void CopyValuesInternal(void* Dest, void const* Src, int32 Count) const override
	{
		for (int32 Index = 0; Index < Count; ++Index)
		{
			((TCppType*)Dest)[Index] = ((const TCppType*)Src)[Index];
		}
	}

private:
	template <class U, class = void>
	struct THasEquality : std::false_type
	{
	};
	template <class U>
	struct THasEquality<U, std::void_t<decltype(std::declval<const U&>() == std::declval<const U&>())>> : std::true_type
	{
	};
};

#define HEADLESS_DECLARE_PROPERTY(ClassName, CppType) \
	class COREUOBJECT_API ClassName : public TProperty<CppType> \
	{ \
	public: \
		using TProperty<CppType>::TProperty; \
		virtual FString GetClassName() const override; \
		virtual FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override; \
\
	protected: \
		virtual void ExportText_Internal(FString& ValueStr, const void* PropertyValue, int32 PortFlags) const override; \
		virtual const TCHAR* ImportText_Internal(const TCHAR* Buffer, void* Data, int32 PortFlags) const override; \
	};

HEADLESS_DECLARE_PROPERTY(FIntProperty, int32)
HEADLESS_DECLARE_PROPERTY(FUInt32Property, uint32)
HEADLESS_DECLARE_PROPERTY(FInt64Property, int64)
HEADLESS_DECLARE_PROPERTY(FUInt64Property, uint64)
HEADLESS_DECLARE_PROPERTY(FFloatProperty, float)
HEADLESS_DECLARE_PROPERTY(FDoubleProperty, double)
HEADLESS_DECLARE_PROPERTY(FStrProperty, FString)
HEADLESS_DECLARE_PROPERTY(FNameProperty, FName)

#undef HEADLESS_DECLARE_PROPERTY

/**
 * A bool member, or a one-bit bitfield of an unsigned integer that the header tool reflects as a
 * bool: reads and writes only its own bit of its byte.
 */
class COREUOBJECT_API FBoolProperty : public FProperty
{
public:
	/** A C++ bool member at InOffset. */
	FBoolProperty(UStruct* InOwner, const TCHAR* InName, EPropertyFlags InFlags, int32 InOffset);
	/**
	 * A bitfield of an InElementSize-byte integer. A bitfield has no address, so its bit is found by
	 * calling SetBit on a blank InSizeOfOuter-byte owner, as the engine's generated code has it.
	 */
	FBoolProperty(UStruct* InOwner, const TCHAR* InName, EPropertyFlags InFlags, uint32 InElementSize, SIZE_T InSizeOfOuter, void (*SetBit)(void* Obj));

	virtual FString GetClassName() const override;
	virtual FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	virtual bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override;
	virtual void InitializeValue(void* Dest) const override;
	virtual void DestroyValue(void* Dest) const override {}

	typedef bool TCppType;
	bool GetPropertyValue(void const* A) const;
	bool GetPropertyValue_InContainer(void const* A, int32 ArrayIndex = 0) const { return GetPropertyValue(ContainerPtrToValuePtr<void>(A, ArrayIndex)); }
	void SetPropertyValue(void* A, bool Value) const;
	void SetPropertyValue_InContainer(void* A, bool Value, int32 ArrayIndex = 0) const { SetPropertyValue(ContainerPtrToValuePtr<void>(A, ArrayIndex), Value); }

	/** Sets the size of the bool or of the bitfield's integer, and the bit the property holds. */
	void SetBoolSize(const uint32 InSize, const bool bIsNativeBool = false, const uint32 InBitMask = 0);
	/** Whether this is a C++ bool rather than a bitfield. */
	bool IsNativeBool() const { return FieldMask == 0xff; }

protected:
	virtual void CopyValuesInternal(void* Dest, void const* Src, int32 Count) const override;
	virtual void ExportText_Internal(FString& ValueStr, const void* PropertyValue, int32 PortFlags) const override;
	virtual const TCHAR* ImportText_Internal(const TCHAR* Buffer, void* Data, int32 PortFlags) const override;

private:
	/** The size of the bool or of the bitfield's integer. */
	uint8 FieldSize = 0;
	/** The byte of the value that holds the bit. */
	uint8 ByteOffset = 0;
	/** The bit that true sets in that byte. */
	uint8 ByteMask = 1;
	/** The bits the value covers in that byte: the bitfield's bit, or the whole byte of a bool. */
	uint8 FieldMask = 1;
};

/** A uint8, or a TEnumAsByte when Enum is set. */
class COREUOBJECT_API FByteProperty : public TProperty<uint8>
{
public:
	FByteProperty(UStruct* InOwner, const TCHAR* InName, EPropertyFlags InFlags, int32 InOffset, UEnum* InEnum = nullptr);
	virtual FString GetClassName() const override;
	virtual FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	UEnum* GetIntPropertyEnum() const { return Enum; }

	UEnum* Enum = nullptr;

protected:
	virtual void ExportText_Internal(FString& ValueStr, const void* PropertyValue, int32 PortFlags) const override;
	virtual const TCHAR* ImportText_Internal(const TCHAR* Buffer, void* Data, int32 PortFlags) const override;
};

/** A pointer to an object of PropertyClass (raw T* or TObjectPtr<T>: both hold one pointer). */
class COREUOBJECT_API FObjectProperty : public TProperty<UObject*>
{
public:
	FObjectProperty(UStruct* InOwner, const TCHAR* InName, EPropertyFlags InFlags, int32 InOffset, UClass* InClass);
	virtual FString GetClassName() const override;
	virtual FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	UObject* GetObjectPropertyValue(const void* PropertyValueAddress) const { return GetPropertyValue(PropertyValueAddress); }
	void SetObjectPropertyValue(void* PropertyValueAddress, UObject* Value) const;

	UClass* PropertyClass = nullptr;

protected:
	virtual void ExportText_Internal(FString& ValueStr, const void* PropertyValue, int32 PortFlags) const override;
	virtual const TCHAR* ImportText_Internal(const TCHAR* Buffer, void* Data, int32 PortFlags) const override;
};

/** A TSubclassOf<MetaClass>: a class pointer limited to MetaClass and its children. */
class COREUOBJECT_API FClassProperty : public FObjectProperty
{
public:
	FClassProperty(UStruct* InOwner, const TCHAR* InName, EPropertyFlags InFlags, int32 InOffset, UClass* InMetaClass);
	virtual FString GetClassName() const override;
	virtual FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;

	UClass* MetaClass = nullptr;

protected:
	virtual const TCHAR* ImportText_Internal(const TCHAR* Buffer, void* Data, int32 PortFlags) const override;
};

/** A USTRUCT value, handled through the struct's own reflection. */
class COREUOBJECT_API FStructProperty : public FProperty
{
public:
	FStructProperty(UStruct* InOwner, const TCHAR* InName, EPropertyFlags InFlags, int32 InOffset, UScriptStruct* InStruct);
	virtual FString GetClassName() const override;
	virtual FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	virtual bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override;
	virtual void InitializeValue(void* Dest) const override { Struct->InitializeStruct(Dest); }
	virtual void DestroyValue(void* Dest) const override { Struct->DestroyStruct(Dest); }

	UScriptStruct* Struct = nullptr;

protected:
	virtual void CopyValuesInternal(void* Dest, void const* Src, int32 Count) const override { Struct->CopyScriptStruct(Dest, Src, Count); }
	virtual void ExportText_Internal(FString& ValueStr, const void* PropertyValue, int32 PortFlags) const override;
	virtual const TCHAR* ImportText_Internal(const TCHAR* Buffer, void* Data, int32 PortFlags) const override;
};

/**
 * Type-erased operations on one TArray type. The engine's arrays share one layout (FScriptArray);
 * the headless TArray wraps std::vector, so the header tool emits these per array property.
 */
struct FScriptArrayOps
{
	int32 (*Num)(const void* Array);
	void (*AddDefaulted)(void* Array, int32 Count);
	void (*InsertDefaulted)(void* Array, int32 Index, int32 Count);
	void (*RemoveAt)(void* Array, int32 Index, int32 Count);
	void* (*GetData)(void* Array);
	void (*Empty)(void* Array, int32 Slack);
	void (*Copy)(void* Dest, const void* Src);
	void (*Construct)(void* Array);
	void (*Destruct)(void* Array);
	int32 Size;
	int32 Alignment;
};

namespace UE::CoreUObject::Private
{
	template <typename ArrayType>
	struct TScriptArrayOps
	{
		static const FScriptArrayOps* Get()
		{
			static const FScriptArrayOps Ops{
				[](const void* Array)
				{ return static_cast<const ArrayType*>(Array)->Num(); },
				[](void* Array, int32 Count)
				{ static_cast<ArrayType*>(Array)->AddDefaulted(Count); },
				[](void* Array, int32 Index, int32 Count)
				{
					ArrayType& Typed = *static_cast<ArrayType*>(Array);
					for (int32 Added = 0; Added < Count; ++Added)
					{
						Typed.Insert(typename ArrayType::ElementType(), Index);
					}
				},
				[](void* Array, int32 Index, int32 Count)
				{ static_cast<ArrayType*>(Array)->RemoveAt(Index, Count); },
				[](void* Array)
				{ return static_cast<void*>(static_cast<ArrayType*>(Array)->GetData()); },
				[](void* Array, int32 Slack)
				{ static_cast<ArrayType*>(Array)->Empty(Slack); },
				[](void* Dest, const void* Src)
				{ *static_cast<ArrayType*>(Dest) = *static_cast<const ArrayType*>(Src); },
				[](void* Array)
				{ new (Array) ArrayType(); },
				[](void* Array)
				{ static_cast<ArrayType*>(Array)->~ArrayType(); },
				static_cast<int32>(sizeof(ArrayType)),
				static_cast<int32>(alignof(ArrayType)),
			};
			return &Ops;
		}
	};
}

/** A TArray of Inner's type. */
class COREUOBJECT_API FArrayProperty : public FProperty
{
public:
	FArrayProperty(UStruct* InOwner, const TCHAR* InName, EPropertyFlags InFlags, int32 InOffset, FProperty* InInner, const FScriptArrayOps* InOps);
	virtual ~FArrayProperty() override;
	virtual FString GetClassName() const override;
	virtual FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	virtual bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override;
	virtual void InitializeValue(void* Dest) const override { Ops->Construct(Dest); }
	virtual void DestroyValue(void* Dest) const override { Ops->Destruct(Dest); }
	const FScriptArrayOps& GetArrayOps() const { return *Ops; }

	FProperty* Inner = nullptr;

protected:
	virtual void CopyValuesInternal(void* Dest, void const* Src, int32 Count) const override;
	virtual void ExportText_Internal(FString& ValueStr, const void* PropertyValue, int32 PortFlags) const override;
	virtual const TCHAR* ImportText_Internal(const TCHAR* Buffer, void* Data, int32 PortFlags) const override;

private:
	const FScriptArrayOps* Ops = nullptr;
};

/** Reads and resizes an array through its property, without knowing its element type. */
class COREUOBJECT_API FScriptArrayHelper
{
public:
	FScriptArrayHelper(const FArrayProperty* InProperty, const void* InArray);

	int32 Num() const { return Ops.Num(Array); }
	bool IsValidIndex(int32 Index) const { return Index >= 0 && Index < Num(); }
	uint8* GetRawPtr(int32 Index = 0);
	/** Adds one default-constructed element and returns its index. */
	int32 AddValue();
	int32 AddValues(int32 Count);
	void InsertValues(int32 Index, int32 Count = 1);
	void RemoveValues(int32 Index, int32 Count = 1);
	void EmptyValues(int32 Slack = 0);
	void Resize(int32 NewNum);
	int32 GetElementSize() const { return ElementSize; }

private:
	const FScriptArrayOps& Ops;
	void* Array;
	int32 ElementSize;
};

/** Whether a field iterator also walks the super struct's fields. */
namespace EFieldIteratorFlags
{
	enum SuperClassFlags
	{
		ExcludeSuper = 0,
		IncludeSuper
	};
}

/** Walks a struct's properties: its own in declaration order, then its super's. */
template <class T>
class TFieldIterator
{
public:
	TFieldIterator(const UStruct* InStruct, EFieldIteratorFlags::SuperClassFlags InSuperClassFlags = EFieldIteratorFlags::IncludeSuper)
		: Struct(InStruct)
		, bIncludeSuper(InSuperClassFlags == EFieldIteratorFlags::IncludeSuper)
	{
		Settle();
	}

	explicit operator bool() const { return Struct != nullptr; }
	bool operator!() const { return Struct == nullptr; }
	void operator++()
	{
		++Index;
		Settle();
	}
	T* operator*() const { return static_cast<T*>(Struct->OwnProperties[Index]); }
	T* operator->() const { return **this; }
	const UStruct* GetStruct() const { return Struct; }

private:
	void Settle()
	{
		while (Struct)
		{
			const TArray<FProperty*>& Properties = Struct->OwnProperties;
			for (; Index < Properties.Num(); ++Index)
			{
				if (Properties[Index]->IsA<T>())
				{
					return;
				}
			}
			Struct = bIncludeSuper ? Struct->GetSuperStruct() : nullptr;
			Index = 0;
		}
	}

	const UStruct* Struct;
	bool bIncludeSuper;
	int32 Index = 0;
};

/** Describes a property change to PostEditChangeProperty. */
struct FPropertyChangedEvent
{
	FPropertyChangedEvent(FProperty* InProperty, EPropertyChangeType::Type InChangeType = EPropertyChangeType::Unspecified)
		: Property(InProperty)
		, MemberProperty(InProperty)
		, ChangeType(InChangeType)
	{
	}
	FPropertyChangedEvent(FProperty* InProperty, EPropertyChangeType::Type InChangeType, const TArray<const UObject*>* InTopLevelObjects)
		: Property(InProperty)
		, MemberProperty(InProperty)
		, ChangeType(InChangeType)
	{
		if (InTopLevelObjects)
		{
			TopLevelObjects = *InTopLevelObjects;
		}
	}

	void SetActiveMemberProperty(FProperty* InActiveMemberProperty) { MemberProperty = InActiveMemberProperty; }
	FName GetPropertyName() const { return Property ? Property->GetFName() : NAME_None; }
	FName GetMemberPropertyName() const { return MemberProperty ? MemberProperty->GetFName() : NAME_None; }
	int32 GetNumObjectsBeingEdited() const { return TopLevelObjects.Num(); }
	const UObject* GetObjectBeingEdited(int32 Index) const { return TopLevelObjects[Index]; }

	FProperty* Property;
	FProperty* MemberProperty;
	EPropertyChangeType::Type ChangeType;
	int32 ObjectIteratorIndex = INDEX_NONE;

private:
	TArray<const UObject*> TopLevelObjects;
};
