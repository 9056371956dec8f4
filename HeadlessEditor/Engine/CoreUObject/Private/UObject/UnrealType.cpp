#include "UObject/UnrealType.h"

#include "Containers/StringConv.h"
#include "UObject/EnumProperty.h"
#include "UObject/TextProperty.h"
#include "UObject/Package.h"
#include "Templates/Casts.h"

#include <cinttypes>
#include <cstdlib>
#include <string>

namespace
{
	bool IsDelimiter(TCHAR Ch)
	{
		return Ch == 0 || Ch == TEXT(',') || Ch == TEXT(')');
	}

	const TCHAR* SkipSpaces(const TCHAR* Buffer)
	{
		while (*Buffer == TEXT(' ') || *Buffer == TEXT('\t'))
		{
			++Buffer;
		}
		return Buffer;
	}

	/** Reads a quoted string or, unquoted, up to the next delimiter (or the end when not delimited). */
	const TCHAR* ReadToken(const TCHAR* Buffer, FString& Out, bool bDelimited)
	{
		Buffer = SkipSpaces(Buffer);
		Out.Empty();
		if (*Buffer == TEXT('"'))
		{
			++Buffer;
			while (*Buffer && *Buffer != TEXT('"'))
			{
				if (*Buffer == TEXT('\\') && Buffer[1])
				{
					++Buffer;
				}
				Out.AppendChar(*Buffer++);
			}
			return *Buffer == TEXT('"') ? Buffer + 1 : nullptr;
		}
		while (*Buffer && !(bDelimited && IsDelimiter(*Buffer)))
		{
			Out.AppendChar(*Buffer++);
		}
		return Buffer;
	}

	FString Quoted(const FString& Value)
	{
		FString Result(TEXT("\""));
		for (TCHAR Ch : Value)
		{
			if (Ch == TEXT('"') || Ch == TEXT('\\'))
			{
				Result.AppendChar(TEXT('\\'));
			}
			Result.AppendChar(Ch);
		}
		return Result + TEXT("\"");
	}

	bool IsDigitChar(TCHAR Ch)
	{
		return Ch >= TEXT('0') && Ch <= TEXT('9');
	}

	bool IsHexDigitChar(TCHAR Ch)
	{
		return IsDigitChar(Ch) || (Ch >= TEXT('a') && Ch <= TEXT('f')) || (Ch >= TEXT('A') && Ch <= TEXT('F'));
	}

	bool IsAlphaChar(TCHAR Ch)
	{
		return (Ch >= TEXT('a') && Ch <= TEXT('z')) || (Ch >= TEXT('A') && Ch <= TEXT('Z'));
	}

	/**
	 * Reads a number as the engine does: an integer needs a leading digit or sign (a leading letter would name an
	 * enumerator), a floating-point value takes whatever number leads the text, 0 if none. The value is the
	 * leading number in base 10, except that unsigned 64-bit values also read hexadecimal.
	 */
	template <typename T>
	const TCHAR* ImportNumber(const TCHAR* Buffer, void* Data, int32 PortFlags)
	{
		if (PortFlags & PPF_Delimited)
		{
			Buffer = SkipSpaces(Buffer);
		}
		const TCHAR* Start = Buffer;
		if constexpr (std::is_integral_v<T>)
		{
			if (IsAlphaChar(*Buffer))
			{
				return nullptr;
			}
			if (Buffer[0] == TEXT('0') && (Buffer[1] == TEXT('x') || Buffer[1] == TEXT('X')))
			{
				Buffer += 2;
				while (IsHexDigitChar(*Buffer))
				{
					++Buffer;
				}
			}
			else
			{
				while (*Buffer == TEXT('-') || *Buffer == TEXT('+'))
				{
					++Buffer;
				}
				while (IsDigitChar(*Buffer))
				{
					++Buffer;
				}
			}
			if (Buffer == Start)
			{
				return nullptr;
			}
		}
		else
		{
			while (*Buffer == TEXT('+') || *Buffer == TEXT('-') || *Buffer == TEXT('.') || IsDigitChar(*Buffer))
			{
				++Buffer;
			}
			if (*Buffer == TEXT('f') || *Buffer == TEXT('F'))
			{
				++Buffer;
			}
		}
		const FTCHARToUTF8 Utf8(Start, static_cast<int32>(Buffer - Start));
		if constexpr (std::is_floating_point_v<T>)
		{
			*static_cast<T*>(Data) = static_cast<T>(std::strtod(Utf8.Get(), nullptr));
		}
		else if constexpr (std::is_same_v<T, uint64>)
		{
			*static_cast<T*>(Data) = static_cast<T>(std::strtoull(Utf8.Get(), nullptr, 0));
		}
		else
		{
			*static_cast<T*>(Data) = static_cast<T>(std::strtoll(Utf8.Get(), nullptr, 10));
		}
		return Buffer;
	}
}

FProperty::FProperty(UStruct* InOwner, const TCHAR* InName, EPropertyFlags InFlags, int32 InOffset, int32 InElementSize, int32 InAlignment)
	: ElementSize(InElementSize)
	, PropertyFlags(InFlags)
	, OwnerStruct(InOwner)
	, NamePrivate(InName)
	, Offset_Internal(InOffset)
	, MinAlignment(InAlignment)
{
}

FProperty::~FProperty() = default;

FText FProperty::GetDisplayNameText() const
{
	const FString& DisplayName = GetMetaData(TEXT("DisplayName"));
	return FText::FromString(DisplayName.IsEmpty() ? FName::NameToDisplayString(GetName(), IsA<FBoolProperty>()) : DisplayName);
}

const FString& FProperty::GetMetaData(const FName& Key) const
{
	static const FString Empty;
	const FString* Found = MetaData.Find(Key);
	return Found ? *Found : Empty;
}

bool FProperty::GetBoolMetaData(const FName& Key) const
{
	const FString& Value = GetMetaData(Key);
	return HasMetaData(Key) && (Value.IsEmpty() || Value == TEXT("true"));
}

UClass* FProperty::GetOwnerClass() const
{
	return Cast<UClass>(OwnerStruct);
}

void FProperty::ExportTextItem_Direct(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const
{
	ExportText_Internal(ValueStr, PropertyValue, PortFlags);
}

const TCHAR* FProperty::ImportText_Direct(const TCHAR* Buffer, void* PropertyPtr, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const
{
	return Buffer ? ImportText_Internal(Buffer, PropertyPtr, PortFlags) : nullptr;
}

bool FProperty::Identical_InContainer(const void* A, const void* B, int32 ArrayIndex, uint32 PortFlags) const
{
	return Identical(ContainerPtrToValuePtr<void>(A, ArrayIndex), B ? ContainerPtrToValuePtr<void>(B, ArrayIndex) : nullptr, PortFlags);
}

void FProperty::CopyCompleteValue(void* Dest, void const* Src) const
{
	if (Dest != Src)
	{
		CopyValuesInternal(Dest, Src, ArrayDim);
	}
}

void FProperty::CopyCompleteValue_InContainer(void* Dest, void const* Src) const
{
	CopyCompleteValue(ContainerPtrToValuePtr<void>(Dest), ContainerPtrToValuePtr<void>(Src));
}

#define IMPLEMENT_NUMERIC_PROPERTY(ClassName, TypeName, CppType, Format) \
	FString ClassName::GetClassName() const \
	{ \
		return TEXT(TypeName); \
	} \
	FString ClassName::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const \
	{ \
		return TEXT(#CppType); \
	} \
	void ClassName::ExportText_Internal(FString& ValueStr, const void* PropertyValue, int32 PortFlags) const \
	{ \
		ValueStr += FString::Printf(Format, GetPropertyValue(PropertyValue)); \
	} \
	const TCHAR* ClassName::ImportText_Internal(const TCHAR* Buffer, void* Data, int32 PortFlags) const \
	{ \
		return ImportNumber<CppType>(Buffer, Data, PortFlags); \
	}

IMPLEMENT_NUMERIC_PROPERTY(FIntProperty, "IntProperty", int32, TEXT("%d"))
IMPLEMENT_NUMERIC_PROPERTY(FUInt32Property, "UInt32Property", uint32, TEXT("%u"))
IMPLEMENT_NUMERIC_PROPERTY(FInt64Property, "Int64Property", int64, TEXT("%lld"))
IMPLEMENT_NUMERIC_PROPERTY(FUInt64Property, "UInt64Property", uint64, TEXT("%llu"))
IMPLEMENT_NUMERIC_PROPERTY(FFloatProperty, "FloatProperty", float, TEXT("%f"))
IMPLEMENT_NUMERIC_PROPERTY(FDoubleProperty, "DoubleProperty", double, TEXT("%f"))

namespace
{
	/** Where a bitfield's bit is in its owner. */
	struct FBitfieldBit
	{
		int32 Offset = INDEX_NONE;
		uint8 Mask = 0;
	};

	/** The bit that SetBit sets in a blank owner; it must be the only one. */
	FBitfieldBit FindBitfieldBit(const TCHAR* Name, SIZE_T SizeOfOuter, void (*SetBit)(void* Obj))
	{
		TArray<uint8> Blank;
		Blank.SetNumZeroed(static_cast<int32>(SizeOfOuter));
		SetBit(Blank.GetData());
		FBitfieldBit Bit;
		int32 BitCount = 0;
		for (int32 Offset = 0; Offset < Blank.Num(); ++Offset)
		{
			for (uint8 Bits = Blank[Offset]; Bits != 0; Bits &= Bits - 1)
			{
				++BitCount;
				Bit = {Offset, Blank[Offset]};
			}
		}
		checkf(BitCount == 1, TEXT("Bitfield %s sets %d bits of its owner instead of one"), Name, BitCount);
		return Bit;
	}
}

FBoolProperty::FBoolProperty(UStruct* InOwner, const TCHAR* InName, EPropertyFlags InFlags, int32 InOffset)
	: FProperty(InOwner, InName, InFlags, InOffset, sizeof(bool), alignof(bool))
{
	SetBoolSize(sizeof(bool), true);
}

FBoolProperty::FBoolProperty(UStruct* InOwner, const TCHAR* InName, EPropertyFlags InFlags, uint32 InElementSize, SIZE_T InSizeOfOuter, void (*SetBit)(void* Obj))
	: FProperty(InOwner, InName, InFlags, 0, static_cast<int32>(InElementSize), 1)
{
	const FBitfieldBit Bit = FindBitfieldBit(InName, InSizeOfOuter, SetBit);
	SetOffset_Internal(Bit.Offset);
	SetBoolSize(InElementSize, false, Bit.Mask);
}

void FBoolProperty::SetBoolSize(const uint32 InSize, const bool bIsNativeBool, const uint32 InBitMask)
{
	ElementSize = static_cast<int32>(InSize);
	FieldSize = static_cast<uint8>(InSize);
	ByteOffset = 0;
	if (bIsNativeBool)
	{
		ByteMask = 1;
		FieldMask = 0xff;
		return;
	}
	// The mask names one bit of the field's integer; keep the byte that holds it, in memory order.
	const uint32 BitMask = InBitMask ? InBitMask : 1;
	while (ByteOffset < InSize && ((BitMask >> (8 * ByteOffset)) & 0xff) == 0)
	{
		++ByteOffset;
	}
	ByteMask = static_cast<uint8>(BitMask >> (8 * ByteOffset));
	FieldMask = ByteMask;
	checkf(ByteMask != 0, TEXT("Bool property %s has no bit in its %u bytes"), *GetName(), InSize);
}

FString FBoolProperty::GetClassName() const
{
	return TEXT("BoolProperty");
}

FString FBoolProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	if (IsNativeBool())
	{
		return TEXT("bool");
	}
	switch (ElementSize)
	{
		case sizeof(uint64):
			return TEXT("uint64");
		case sizeof(uint32):
			return TEXT("uint32");
		case sizeof(uint16):
			return TEXT("uint16");
		default:
			return TEXT("uint8");
	}
}

bool FBoolProperty::GetPropertyValue(void const* A) const
{
	return (static_cast<const uint8*>(A)[ByteOffset] & FieldMask) != 0;
}

void FBoolProperty::SetPropertyValue(void* A, bool Value) const
{
	uint8& Byte = static_cast<uint8*>(A)[ByteOffset];
	Byte = (Byte & ~FieldMask) | (Value ? ByteMask : 0);
}

bool FBoolProperty::Identical(const void* A, const void* B, uint32 PortFlags) const
{
	return GetPropertyValue(A) == (B && GetPropertyValue(B));
}

void FBoolProperty::InitializeValue(void* Dest) const
{
	SetPropertyValue(Dest, false);
}

void FBoolProperty::CopyValuesInternal(void* Dest, void const* Src, int32 Count) const
{
	for (int32 Index = 0; Index < Count; ++Index)
	{
		SetPropertyValue(static_cast<uint8*>(Dest) + Index * ElementSize, GetPropertyValue(static_cast<const uint8*>(Src) + Index * ElementSize));
	}
}

void FBoolProperty::ExportText_Internal(FString& ValueStr, const void* PropertyValue, int32 PortFlags) const
{
	ValueStr += GetPropertyValue(PropertyValue) ? TEXT("True") : TEXT("False");
}

const TCHAR* FBoolProperty::ImportText_Internal(const TCHAR* Buffer, void* Data, int32 PortFlags) const
{
	FString Token;
	const TCHAR* End = ReadToken(Buffer, Token, (PortFlags & PPF_Delimited) != 0);
	Token = Token.TrimStartAndEnd();
	if (Token == TEXT("True") || Token == TEXT("Yes") || Token == TEXT("1"))
	{
		SetPropertyValue(Data, true);
	}
	else if (Token == TEXT("False") || Token == TEXT("No") || Token == TEXT("0"))
	{
		SetPropertyValue(Data, false);
	}
	else
	{
		return nullptr;
	}
	return End;
}

FString FStrProperty::GetClassName() const
{
	return TEXT("StrProperty");
}

FString FStrProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	return TEXT("FString");
}

void FStrProperty::ExportText_Internal(FString& ValueStr, const void* PropertyValue, int32 PortFlags) const
{
	ValueStr += (PortFlags & PPF_Delimited) ? Quoted(GetPropertyValue(PropertyValue)) : GetPropertyValue(PropertyValue);
}

const TCHAR* FStrProperty::ImportText_Internal(const TCHAR* Buffer, void* Data, int32 PortFlags) const
{
	FString Token;
	const TCHAR* End = (PortFlags & PPF_Delimited) ? ReadToken(Buffer, Token, true) : nullptr;
	if (!(PortFlags & PPF_Delimited))
	{
		Token = Buffer;
		End = Buffer + Token.Len();
	}
	if (End)
	{
		SetPropertyValue(Data, Token);
	}
	return End;
}

FString FNameProperty::GetClassName() const
{
	return TEXT("NameProperty");
}

FString FNameProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	return TEXT("FName");
}

void FNameProperty::ExportText_Internal(FString& ValueStr, const void* PropertyValue, int32 PortFlags) const
{
	const FString Name = GetPropertyValue(PropertyValue).ToString();
	ValueStr += (PortFlags & PPF_Delimited) ? Quoted(Name) : Name;
}

const TCHAR* FNameProperty::ImportText_Internal(const TCHAR* Buffer, void* Data, int32 PortFlags) const
{
	// Undelimited, the whole text is the name, as typed.
	if (!(PortFlags & PPF_Delimited))
	{
		const FString Text(Buffer);
		SetPropertyValue(Data, Text == TEXT("None") ? FName() : FName(*Text));
		return Buffer + Text.Len();
	}
	FString Token;
	const TCHAR* End = ReadToken(Buffer, Token, (PortFlags & PPF_Delimited) != 0);
	if (End)
	{
		SetPropertyValue(Data, Token == TEXT("None") ? FName() : FName(*Token));
	}
	return End;
}

FString FTextProperty::GetClassName() const
{
	return TEXT("TextProperty");
}

FString FTextProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	return TEXT("FText");
}

bool FTextProperty::Identical(const void* A, const void* B, uint32 PortFlags) const
{
	const FString Other = B ? GetPropertyValue(B).ToString() : FString();
	return GetPropertyValue(A).ToString().Equals(Other);
}

void FTextProperty::ExportText_Internal(FString& ValueStr, const void* PropertyValue, int32 PortFlags) const
{
	ValueStr += (PortFlags & PPF_Delimited) ? Quoted(GetPropertyValue(PropertyValue).ToString()) : GetPropertyValue(PropertyValue).ToString();
}

const TCHAR* FTextProperty::ImportText_Internal(const TCHAR* Buffer, void* Data, int32 PortFlags) const
{
	FString Token;
	const TCHAR* End = ReadToken(Buffer, Token, (PortFlags & PPF_Delimited) != 0);
	if (End)
	{
		SetPropertyValue(Data, FText::FromString(Token));
	}
	return End;
}

namespace
{
	void ExportEnumValue(FString& ValueStr, const UEnum* Enum, int64 Value)
	{
		const int32 Index = Enum->GetIndexByValue(Value);
		ValueStr += Index == INDEX_NONE ? FString::Printf(TEXT("%lld"), Value) : Enum->GetNameStringByIndex(Index);
	}

	const TCHAR* ImportEnumValue(const TCHAR* Buffer, const UEnum* Enum, int64& OutValue, int32 PortFlags)
	{
		FString Token;
		const TCHAR* End = ReadToken(Buffer, Token, (PortFlags & PPF_Delimited) != 0);
		if (!End)
		{
			return nullptr;
		}
		const int32 Index = Enum->GetIndexByName(FName(*Token.TrimStartAndEnd()));
		if (Index == INDEX_NONE)
		{
			return nullptr;
		}
		OutValue = Enum->GetValueByIndex(Index);
		return End;
	}
}

FByteProperty::FByteProperty(UStruct* InOwner, const TCHAR* InName, EPropertyFlags InFlags, int32 InOffset, UEnum* InEnum)
	: TProperty<uint8>(InOwner, InName, InFlags, InOffset)
	, Enum(InEnum)
{
}

FString FByteProperty::GetClassName() const
{
	return TEXT("ByteProperty");
}

FString FByteProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	if (Enum && Enum->GetCppForm() == UEnum::ECppForm::Namespaced)
	{
		return FString::Printf(TEXT("TEnumAsByte<%s::Type>"), *Enum->GetName());
	}
	return Enum ? FString::Printf(TEXT("TEnumAsByte<%s>"), *Enum->GetName()) : FString(TEXT("uint8"));
}

void FByteProperty::ExportText_Internal(FString& ValueStr, const void* PropertyValue, int32 PortFlags) const
{
	if (Enum)
	{
		ExportEnumValue(ValueStr, Enum, GetPropertyValue(PropertyValue));
	}
	else
	{
		ValueStr += FString::Printf(TEXT("%d"), GetPropertyValue(PropertyValue));
	}
}

const TCHAR* FByteProperty::ImportText_Internal(const TCHAR* Buffer, void* Data, int32 PortFlags) const
{
	if (Enum)
	{
		int64 Value = 0;
		const TCHAR* End = ImportEnumValue(Buffer, Enum, Value, PortFlags);
		if (End)
		{
			SetPropertyValue(Data, static_cast<uint8>(Value));
		}
		return End;
	}
	return ImportNumber<uint8>(Buffer, Data, PortFlags);
}

FEnumProperty::FEnumProperty(UStruct* InOwner, const TCHAR* InName, EPropertyFlags InFlags, int32 InOffset, UEnum* InEnum, int32 InSize)
	: FProperty(InOwner, InName, InFlags, InOffset, InSize, InSize)
	, Enum(InEnum)
{
	checkf(InSize == 1 || InSize == 4, TEXT("Enum properties of %d bytes are not supported"), InSize);
	UnderlyingProp = InSize == 1 ? static_cast<FProperty*>(new FByteProperty(InOwner, TEXT("UnderlyingType"), CPF_None, 0)) : static_cast<FProperty*>(new FIntProperty(InOwner, TEXT("UnderlyingType"), CPF_None, 0));
}

FEnumProperty::~FEnumProperty()
{
	delete UnderlyingProp;
}

FString FEnumProperty::GetClassName() const
{
	return TEXT("EnumProperty");
}

FString FEnumProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	return Enum->GetName();
}

int64 FEnumProperty::GetValue(const void* Data) const
{
	return ElementSize == 1 ? static_cast<int64>(*static_cast<const uint8*>(Data)) : static_cast<int64>(*static_cast<const int32*>(Data));
}

void FEnumProperty::SetValue(void* Data, int64 Value) const
{
	if (ElementSize == 1)
	{
		*static_cast<uint8*>(Data) = static_cast<uint8>(Value);
	}
	else
	{
		*static_cast<int32*>(Data) = static_cast<int32>(Value);
	}
}

bool FEnumProperty::Identical(const void* A, const void* B, uint32 PortFlags) const
{
	return GetValue(A) == (B ? GetValue(B) : 0);
}

void FEnumProperty::InitializeValue(void* Dest) const
{
	SetValue(Dest, 0);
}

void FEnumProperty::CopyValuesInternal(void* Dest, void const* Src, int32 Count) const
{
	for (int32 Index = 0; Index < Count; ++Index)
	{
		SetValue(static_cast<uint8*>(Dest) + Index * ElementSize, GetValue(static_cast<const uint8*>(Src) + Index * ElementSize));
	}
}

void FEnumProperty::ExportText_Internal(FString& ValueStr, const void* PropertyValue, int32 PortFlags) const
{
	ExportEnumValue(ValueStr, Enum, GetValue(PropertyValue));
}

const TCHAR* FEnumProperty::ImportText_Internal(const TCHAR* Buffer, void* Data, int32 PortFlags) const
{
	int64 Value = 0;
	const TCHAR* End = ImportEnumValue(Buffer, Enum, Value, PortFlags);
	if (End)
	{
		SetValue(Data, Value);
	}
	return End;
}

FObjectProperty::FObjectProperty(UStruct* InOwner, const TCHAR* InName, EPropertyFlags InFlags, int32 InOffset, UClass* InClass)
	: TProperty<UObject*>(InOwner, InName, InFlags, InOffset)
	, PropertyClass(InClass)
{
}

FString FObjectProperty::GetClassName() const
{
	return TEXT("ObjectProperty");
}

FString FObjectProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	const FString ClassName = PropertyClass->GetPrefixCPP() + PropertyClass->GetName();
	return HasAnyPropertyFlags(CPF_TObjectPtrWrapper) ? FString::Printf(TEXT("TObjectPtr<%s>"), *ClassName) : ClassName + TEXT("*");
}

void FObjectProperty::SetObjectPropertyValue(void* PropertyValueAddress, UObject* Value) const
{
	checkf(!Value || Value->IsA(PropertyClass), TEXT("%s cannot hold an object of class %s"), *GetName(), *Value->GetClass()->GetName());
	SetPropertyValue(PropertyValueAddress, Value);
}

void FObjectProperty::ExportText_Internal(FString& ValueStr, const void* PropertyValue, int32 PortFlags) const
{
	const UObject* Object = GetPropertyValue(PropertyValue);
	ValueStr += Object ? Object->GetPathName() : FString(TEXT("None"));
}

const TCHAR* FObjectProperty::ImportText_Internal(const TCHAR* Buffer, void* Data, int32 PortFlags) const
{
	FString Token;
	const TCHAR* End = ReadToken(Buffer, Token, (PortFlags & PPF_Delimited) != 0);
	if (!End)
	{
		return nullptr;
	}
	Token = Token.TrimStartAndEnd();
	// Accept the engine's Class'/Path/To.Object' form as well as a bare path.
	int32 Quote = INDEX_NONE;
	if (Token.FindChar(TEXT('\''), Quote) && Token.EndsWith(TEXT("'")))
	{
		Token = Token.Mid(Quote + 1, Token.Len() - Quote - 2);
	}
	if (Token == TEXT("None") || Token.IsEmpty())
	{
		SetPropertyValue(Data, nullptr);
		return End;
	}
	UObject* Found = StaticFindObject(PropertyClass, nullptr, *Token);
	if (!Found)
	{
		return nullptr;
	}
	SetPropertyValue(Data, Found);
	return End;
}

FClassProperty::FClassProperty(UStruct* InOwner, const TCHAR* InName, EPropertyFlags InFlags, int32 InOffset, UClass* InMetaClass)
	: FObjectProperty(InOwner, InName, InFlags, InOffset, UClass::StaticClass())
	, MetaClass(InMetaClass)
{
}

FString FClassProperty::GetClassName() const
{
	return TEXT("ClassProperty");
}

FString FClassProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	return FString::Printf(TEXT("TSubclassOf<%s%s>"), MetaClass->GetPrefixCPP(), *MetaClass->GetName());
}

const TCHAR* FClassProperty::ImportText_Internal(const TCHAR* Buffer, void* Data, int32 PortFlags) const
{
	const TCHAR* End = FObjectProperty::ImportText_Internal(Buffer, Data, PortFlags);
	const UClass* Class = static_cast<const UClass*>(GetPropertyValue(Data));
	if (End && Class && !Class->IsChildOf(MetaClass))
	{
		SetPropertyValue(Data, nullptr);
		return nullptr;
	}
	return End;
}

FStructProperty::FStructProperty(UStruct* InOwner, const TCHAR* InName, EPropertyFlags InFlags, int32 InOffset, UScriptStruct* InStruct)
	: FProperty(InOwner, InName, InFlags, InOffset, InStruct->GetStructureSize(), InStruct->GetMinAlignment())
	, Struct(InStruct)
{
}

FString FStructProperty::GetClassName() const
{
	return TEXT("StructProperty");
}

FString FStructProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	return TEXT("F") + Struct->GetName();
}

bool FStructProperty::Identical(const void* A, const void* B, uint32 PortFlags) const
{
	if (!B)
	{
		TArray<uint8> Default;
		Default.SetNum(Struct->GetStructureSize());
		Struct->InitializeStruct(Default.GetData());
		const bool bResult = Struct->CompareScriptStruct(A, Default.GetData(), PortFlags);
		Struct->DestroyStruct(Default.GetData());
		return bResult;
	}
	return Struct->CompareScriptStruct(A, B, PortFlags);
}

void FStructProperty::ExportText_Internal(FString& ValueStr, const void* PropertyValue, int32 PortFlags) const
{
	ValueStr += TEXT("(");
	bool bFirst = true;
	for (TFieldIterator<FProperty> It(Struct); It; ++It)
	{
		ValueStr += bFirst ? TEXT("") : TEXT(",");
		bFirst = false;
		ValueStr += It->GetName() + TEXT("=");
		It->ExportTextItem_Direct(ValueStr, It->ContainerPtrToValuePtr<void>(PropertyValue), nullptr, nullptr, PortFlags | PPF_Delimited);
	}
	ValueStr += TEXT(")");
}

const TCHAR* FStructProperty::ImportText_Internal(const TCHAR* Buffer, void* Data, int32 PortFlags) const
{
	Buffer = SkipSpaces(Buffer);
	if (*Buffer++ != TEXT('('))
	{
		return nullptr;
	}
	while (true)
	{
		Buffer = SkipSpaces(Buffer);
		if (*Buffer == TEXT(')'))
		{
			return Buffer + 1;
		}
		FString Name;
		while (*Buffer && *Buffer != TEXT('=') && *Buffer != TEXT(')'))
		{
			Name.AppendChar(*Buffer++);
		}
		if (*Buffer != TEXT('='))
		{
			return nullptr;
		}
		FProperty* Member = Struct->FindPropertyByName(FName(*Name.TrimStartAndEnd()));
		if (!Member)
		{
			return nullptr;
		}
		Buffer = Member->ImportText_Direct(Buffer + 1, Member->ContainerPtrToValuePtr<void>(Data), nullptr, PortFlags | PPF_Delimited);
		if (!Buffer)
		{
			return nullptr;
		}
		Buffer = SkipSpaces(Buffer);
		if (*Buffer == TEXT(','))
		{
			++Buffer;
		}
		else if (*Buffer != TEXT(')'))
		{
			return nullptr;
		}
	}
}

FArrayProperty::FArrayProperty(UStruct* InOwner, const TCHAR* InName, EPropertyFlags InFlags, int32 InOffset, FProperty* InInner, const FScriptArrayOps* InOps)
	: FProperty(InOwner, InName, InFlags, InOffset, InOps->Size, InOps->Alignment)
	, Inner(InInner)
	, Ops(InOps)
{
}

FArrayProperty::~FArrayProperty()
{
	delete Inner;
}

FString FArrayProperty::GetClassName() const
{
	return TEXT("ArrayProperty");
}

FString FArrayProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	if (ExtendedTypeText)
	{
		*ExtendedTypeText = FString::Printf(TEXT("<%s>"), *Inner->GetCPPType());
		return TEXT("TArray");
	}
	return FString::Printf(TEXT("TArray<%s>"), *Inner->GetCPPType());
}

bool FArrayProperty::Identical(const void* A, const void* B, uint32 PortFlags) const
{
	FScriptArrayHelper HelperA(this, A);
	const int32 Num = HelperA.Num();
	if (!B)
	{
		return Num == 0;
	}
	FScriptArrayHelper HelperB(this, B);
	if (Num != HelperB.Num())
	{
		return false;
	}
	for (int32 Index = 0; Index < Num; ++Index)
	{
		if (!Inner->Identical(HelperA.GetRawPtr(Index), HelperB.GetRawPtr(Index), PortFlags))
		{
			return false;
		}
	}
	return true;
}

void FArrayProperty::CopyValuesInternal(void* Dest, void const* Src, int32 Count) const
{
	for (int32 Index = 0; Index < Count; ++Index)
	{
		Ops->Copy(static_cast<uint8*>(Dest) + Index * ElementSize, static_cast<const uint8*>(Src) + Index * ElementSize);
	}
}

void FArrayProperty::ExportText_Internal(FString& ValueStr, const void* PropertyValue, int32 PortFlags) const
{
	FScriptArrayHelper Helper(this, PropertyValue);
	ValueStr += TEXT("(");
	for (int32 Index = 0; Index < Helper.Num(); ++Index)
	{
		ValueStr += Index > 0 ? TEXT(",") : TEXT("");
		Inner->ExportTextItem_Direct(ValueStr, Helper.GetRawPtr(Index), nullptr, nullptr, PortFlags | PPF_Delimited);
	}
	ValueStr += TEXT(")");
}

const TCHAR* FArrayProperty::ImportText_Internal(const TCHAR* Buffer, void* Data, int32 PortFlags) const
{
	Buffer = SkipSpaces(Buffer);
	if (*Buffer++ != TEXT('('))
	{
		return nullptr;
	}
	FScriptArrayHelper Helper(this, Data);
	Helper.EmptyValues();
	while (true)
	{
		Buffer = SkipSpaces(Buffer);
		if (*Buffer == TEXT(')'))
		{
			return Buffer + 1;
		}
		const int32 Index = Helper.AddValue();
		Buffer = Inner->ImportText_Direct(Buffer, Helper.GetRawPtr(Index), nullptr, PortFlags | PPF_Delimited);
		if (!Buffer)
		{
			return nullptr;
		}
		Buffer = SkipSpaces(Buffer);
		if (*Buffer == TEXT(','))
		{
			++Buffer;
		}
		else if (*Buffer != TEXT(')'))
		{
			return nullptr;
		}
	}
}

FScriptArrayHelper::FScriptArrayHelper(const FArrayProperty* InProperty, const void* InArray)
	: Ops(InProperty->GetArrayOps())
	, Array(const_cast<void*>(InArray))
	, ElementSize(InProperty->Inner->ElementSize)
{
}

uint8* FScriptArrayHelper::GetRawPtr(int32 Index)
{
	if (Num() == 0 && Index == 0)
	{
		return nullptr;
	}
	checkf(IsValidIndex(Index), TEXT("Array index out of bounds: %d from an array of size %d"), Index, Num());
	return static_cast<uint8*>(Ops.GetData(Array)) + Index * ElementSize;
}

int32 FScriptArrayHelper::AddValue()
{
	return AddValues(1);
}

int32 FScriptArrayHelper::AddValues(int32 Count)
{
	const int32 OldNum = Num();
	Ops.AddDefaulted(Array, Count);
	return OldNum;
}

void FScriptArrayHelper::InsertValues(int32 Index, int32 Count)
{
	checkf(Index >= 0 && Index <= Num(), TEXT("Array index out of bounds: %d from an array of size %d"), Index, Num());
	Ops.InsertDefaulted(Array, Index, Count);
}

void FScriptArrayHelper::RemoveValues(int32 Index, int32 Count)
{
	checkf(Index >= 0 && Count >= 0 && Index + Count <= Num(), TEXT("Array index out of bounds: %d from an array of size %d"), Index, Num());
	Ops.RemoveAt(Array, Index, Count);
}

void FScriptArrayHelper::EmptyValues(int32 Slack)
{
	Ops.Empty(Array, Slack);
}

void FScriptArrayHelper::Resize(int32 NewNum)
{
	const int32 OldNum = Num();
	if (NewNum > OldNum)
	{
		AddValues(NewNum - OldNum);
	}
	else if (NewNum < OldNum)
	{
		RemoveValues(NewNum, OldNum - NewNum);
	}
}
