#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"

#include <type_traits>

class FProperty;

/** A reflected declaration: struct, class or enum. Keeps the metadata the editor reads. */
class COREUOBJECT_API UField : public UObject
{
	DECLARE_CLASS_INTRINSIC_NO_CTOR(UField, UObject, COREUOBJECT_API)

public:
	bool HasMetaData(const TCHAR* Key) const { return MetaData.Contains(FName(Key)); }
	bool HasMetaData(const FName& Key) const { return MetaData.Contains(Key); }
	const FString& GetMetaData(const TCHAR* Key) const { return GetMetaData(FName(Key)); }
	const FString& GetMetaData(const FName& Key) const;
	void SetMetaData(const TCHAR* Key, const TCHAR* InValue) { MetaData.Add(FName(Key), FString(InValue)); }

	/** The display name: the DisplayName metadata, or the name itself. */
	FText GetDisplayNameText() const;

private:
	TMap<FName, FString> MetaData;
};

/** A reflected type with properties and an optional super type. */
class COREUOBJECT_API UStruct : public UField
{
	DECLARE_CLASS_INTRINSIC_NO_CTOR(UStruct, UField, COREUOBJECT_API)

public:
	virtual ~UStruct() override;

	UStruct* GetSuperStruct() const { return SuperStruct; }
	void SetSuperStruct(UStruct* NewSuperStruct) { SuperStruct = NewSuperStruct; }
	bool IsChildOf(const UStruct* SomeBase) const;
	template <class T>
	bool IsChildOf() const
	{
		return IsChildOf(T::StaticClass());
	}

	FProperty* FindPropertyByName(FName InName) const;
	/** The C++ prefix of the type's name: "F" for structs, "U" or "A" for classes. */
	virtual const TCHAR* GetPrefixCPP() const { return TEXT("F"); }
	int32 GetPropertiesSize() const { return PropertiesSize; }
	int32 GetStructureSize() const { return PropertiesSize; }
	int32 GetMinAlignment() const { return MinAlignment; }

	/** Adds a property declared by the type's own code; properties keep declaration order. */
	void AddCppProperty(FProperty* Property);
	/** Copies every reflected property from Src to Dest, optionally skipping transient ones. */
	void CopyProperties(void* Dest, const void* Src, bool bSkipTransient) const;

protected:
	friend class FUObjectRegistry;
	template <class T>
	friend class TFieldIterator;
	UStruct* SuperStruct = nullptr;
	TArray<FProperty*> OwnProperties;
	int32 PropertiesSize = 0;
	int32 MinAlignment = 1;
};

/** A reflected USTRUCT, with the operations to construct, copy and destroy its values. */
class COREUOBJECT_API UScriptStruct : public UStruct
{
	DECLARE_CLASS_INTRINSIC_NO_CTOR(UScriptStruct, UStruct, COREUOBJECT_API)

public:
	/** The native operations of a struct type. */
	struct ICppStructOps
	{
		ICppStructOps(int32 InSize, int32 InAlignment)
			: Size(InSize)
			, Alignment(InAlignment)
		{
		}
		virtual ~ICppStructOps() = default;
		virtual void Construct(void* Dest) = 0;
		virtual void Destruct(void* Dest) = 0;
		virtual bool Copy(void* Dest, const void* Src, int32 ArrayDim) = 0;
		virtual bool HasIdentical() const = 0;
		virtual bool Identical(const void* A, const void* B, uint32 PortFlags, bool& bOutResult) = 0;
		int32 GetSize() const { return Size; }
		int32 GetAlignment() const { return Alignment; }

	private:
		int32 Size;
		int32 Alignment;
	};

	template <class CPPSTRUCT>
	struct TCppStructOps : public ICppStructOps
	{
		TCppStructOps()
			: ICppStructOps(sizeof(CPPSTRUCT), alignof(CPPSTRUCT))
		{
		}
		virtual void Construct(void* Dest) override { new (Dest) CPPSTRUCT(); }
		virtual void Destruct(void* Dest) override { static_cast<CPPSTRUCT*>(Dest)->~CPPSTRUCT(); }
		virtual bool Copy(void* Dest, const void* Src, int32 ArrayDim) override
		{
			for (int32 Index = 0; Index < ArrayDim; ++Index)
			{
				static_cast<CPPSTRUCT*>(Dest)[Index] = static_cast<const CPPSTRUCT*>(Src)[Index];
			}
			return true;
		}
		virtual bool HasIdentical() const override { return THasEquality<CPPSTRUCT>::value; }
		virtual bool Identical(const void* A, const void* B, uint32 PortFlags, bool& bOutResult) override
		{
			if constexpr (THasEquality<CPPSTRUCT>::value)
			{
				bOutResult = *static_cast<const CPPSTRUCT*>(A) == *static_cast<const CPPSTRUCT*>(B);
				return true;
			}
			return false;
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

	virtual ~UScriptStruct() override;

	ICppStructOps* GetCppStructOps() const { return CppStructOps; }
	void InitializeStruct(void* Dest, int32 ArrayDim = 1) const;
	void DestroyStruct(void* Dest, int32 ArrayDim = 1) const;
	void CopyScriptStruct(void* Dest, void const* Src, int32 ArrayDim = 1) const;
	/** Compares two values: with the struct's operator== when it has one, property by property otherwise. */
	bool CompareScriptStruct(const void* A, const void* B, uint32 PortFlags) const;

private:
	friend class FUObjectRegistry;
	ICppStructOps* CppStructOps = nullptr;
};

/** A reflected UCLASS: its flags, its default object and how to construct instances. */
class COREUOBJECT_API UClass : public UStruct
{
	DECLARE_CLASS_INTRINSIC_NO_CTOR(UClass, UStruct, COREUOBJECT_API)

public:
	typedef UObject* (*ClassConstructorType)(const FObjectInitializer&);

	EClassFlags ClassFlags = CLASS_None;
	UClass* ClassWithin = nullptr;
	FName ClassConfigName;
	ClassConstructorType ClassConstructor = nullptr;

	UClass* GetSuperClass() const { return static_cast<UClass*>(GetSuperStruct()); }
	virtual const TCHAR* GetPrefixCPP() const override;
	bool HasAnyClassFlags(EClassFlags FlagsToCheck) const { return (ClassFlags & FlagsToCheck) != 0; }
	bool HasAllClassFlags(EClassFlags FlagsToCheck) const { return (ClassFlags & FlagsToCheck) == FlagsToCheck; }
	EClassFlags GetClassFlags() const { return ClassFlags; }

	/** The class default object, created on first request. */
	UObject* GetDefaultObject(bool bCreateIfNeeded = true) const;
	template <class T>
	T* GetDefaultObject() const
	{
		return (T*)GetDefaultObject();
	}

	/** Whether an instance of this class may be created inside Outer (the Within specifier). */
	bool IsValidOuter(const UObject* Outer) const;

private:
	friend class FUObjectRegistry;
	friend FName MakeUniqueObjectName(UObject* Parent, const UClass* Class, FName InBaseName);
	mutable UObject* ClassDefaultObject = nullptr;
	mutable int32 ClassUnique = 0;
};

/** A reflected UENUM: its names and values. */
class COREUOBJECT_API UEnum : public UField
{
	DECLARE_CLASS_INTRINSIC_NO_CTOR(UEnum, UField, COREUOBJECT_API)

public:
	enum class ECppForm
	{
		Regular,
		Namespaced,
		EnumClass
	};

	ECppForm GetCppForm() const { return CppForm; }
	int32 NumEnums() const { return Names.Num(); }
	FName GetNameByIndex(int32 Index) const;
	int64 GetValueByIndex(int32 Index) const;
	int32 GetIndexByValue(int64 InValue) const;
	int32 GetIndexByName(const FName InName) const;
	int64 GetValueByName(const FName InName) const;
	FName GetNameByValue(int64 InValue) const;
	/** The enumerator's name without the "EType::" prefix. */
	FString GetNameStringByIndex(int32 InIndex) const;
	FString GetNameStringByValue(int64 InValue) const;
	/** The enumerator's DisplayName metadata, or its short name. */
	FText GetDisplayNameTextByValue(int64 InValue) const;
	FText GetDisplayNameTextByIndex(int32 InIndex) const;
	int64 GetMaxEnumValue() const;
	using UField::GetMetaData;
	using UField::HasMetaData;
	/** Per-enumerator metadata, as UMETA(...) declares it. */
	FString GetMetaData(const TCHAR* Key, int32 NameIndex) const;
	bool HasMetaData(const TCHAR* Key, int32 NameIndex) const;

private:
	friend class FUObjectRegistry;
	TArray<TPair<FName, int64>> Names;
	ECppForm CppForm = ECppForm::Regular;
};

// Reflection of Core's math structs, as the engine's NoExportTypes declare them.
template <>
COREUOBJECT_API UScriptStruct* StaticStruct<FVector>();
template <>
COREUOBJECT_API UScriptStruct* StaticStruct<FRotator>();
template <>
COREUOBJECT_API UScriptStruct* StaticStruct<FLinearColor>();
template <>
COREUOBJECT_API UScriptStruct* StaticStruct<FColor>();
template <>
COREUOBJECT_API UScriptStruct* StaticStruct<FVector2D>();

template <class T>
struct TBaseStructure
{
	static UScriptStruct* Get() { return StaticStruct<T>(); }
};
