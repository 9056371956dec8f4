#include "PropertyHandleImpl.h"

#include "DetailLayoutBuilder.h"
#include "DetailPropertyNode.h"
#include "HeadlessDetailsView.h"
#include "PropertyValueWidgets.h"
#include "Internationalization/Internationalization.h"
#include "UObject/Class.h"
#include "UObject/EnumProperty.h"
#include "UObject/Object.h"
#include "UObject/TextProperty.h"
#include "Widgets/Text/STextBlock.h"

#include <new>

namespace
{
	/** Whether a property stores exactly a T, as the engine's typed handles accept it. */
	template <typename T>
	bool HoldsType(const FProperty* Property);

	template <typename PropertyType>
	bool IsExactly(const FProperty* Property)
	{
		return CastField<PropertyType>(Property) != nullptr;
	}

	template <typename StructType>
	bool IsStructOf(const FProperty* Property)
	{
		const FStructProperty* StructProperty = CastField<FStructProperty>(Property);
		return StructProperty && StructProperty->Struct == TBaseStructure<StructType>::Get();
	}

	// clang-format off
	template <> bool HoldsType<float>(const FProperty* Property) { return IsExactly<FFloatProperty>(Property); }
	template <> bool HoldsType<double>(const FProperty* Property) { return IsExactly<FDoubleProperty>(Property); }
	template <> bool HoldsType<bool>(const FProperty* Property) { return IsExactly<FBoolProperty>(Property); }
	template <> bool HoldsType<int8>(const FProperty* Property) { return false; }
	template <> bool HoldsType<int16>(const FProperty* Property) { return false; }
	template <> bool HoldsType<uint16>(const FProperty* Property) { return false; }
	template <> bool HoldsType<int32>(const FProperty* Property) { return IsExactly<FIntProperty>(Property); }
	template <> bool HoldsType<int64>(const FProperty* Property) { return IsExactly<FInt64Property>(Property); }
	template <> bool HoldsType<uint32>(const FProperty* Property) { return IsExactly<FUInt32Property>(Property); }
	template <> bool HoldsType<uint64>(const FProperty* Property) { return IsExactly<FUInt64Property>(Property); }
	template <> bool HoldsType<FString>(const FProperty* Property) { return IsExactly<FStrProperty>(Property); }
	template <> bool HoldsType<FText>(const FProperty* Property) { return IsExactly<FTextProperty>(Property); }
	template <> bool HoldsType<FName>(const FProperty* Property) { return IsExactly<FNameProperty>(Property); }
	template <> bool HoldsType<FVector>(const FProperty* Property) { return IsStructOf<FVector>(Property); }
	template <> bool HoldsType<FVector2D>(const FProperty* Property) { return IsStructOf<FVector2D>(Property); }
	template <> bool HoldsType<FRotator>(const FProperty* Property) { return IsStructOf<FRotator>(Property); }
	template <> bool HoldsType<UObject*>(const FProperty* Property) { return IsExactly<FObjectProperty>(Property); }
	// clang-format on

	/** Bytes and byte-sized enumerations both read as uint8. */
	template <>
	bool HoldsType<uint8>(const FProperty* Property)
	{
		const FEnumProperty* EnumProperty = CastField<FEnumProperty>(Property);
		return IsExactly<FByteProperty>(Property) || (EnumProperty && EnumProperty->ElementSize == 1);
	}

	/** The value of type T at Address; a bool property reads only its own bit, which may be a bitfield's. */
	template <typename T>
	T ReadValue(const FProperty* Property, const void* Address)
	{
		return *static_cast<const T*>(Address);
	}

	template <>
	bool ReadValue<bool>(const FProperty* Property, const void* Address)
	{
		return CastField<FBoolProperty>(Property)->GetPropertyValue(Address);
	}

	template <typename T>
	void WriteValue(const FProperty* Property, void* Address, const T& Value)
	{
		*static_cast<T*>(Address) = Value;
	}

	template <>
	void WriteValue<bool>(const FProperty* Property, void* Address, const bool& Value)
	{
		CastField<FBoolProperty>(Property)->SetPropertyValue(Address, Value);
	}

	/** A value of a property's type, outside any object. */
	class FScopedPropertyValue
	{
	public:
		explicit FScopedPropertyValue(const FProperty* InProperty)
			: Property(InProperty)
			, Alignment(InProperty->GetMinAlignment() > 0 ? InProperty->GetMinAlignment() : 1)
			, Data(::operator new(InProperty->ElementSize, std::align_val_t(InProperty->GetMinAlignment() > 0 ? InProperty->GetMinAlignment() : 1)))
		{
			Property->InitializeValue(Data);
		}
		~FScopedPropertyValue()
		{
			Property->DestroyValue(Data);
			::operator delete(Data, std::align_val_t(Alignment));
		}
		void* Get() const { return Data; }

	private:
		const FProperty* Property;
		int32 Alignment;
		void* Data;
	};
}

FPropertyHandleImpl::FPropertyHandleImpl(const TSharedPtr<FDetailPropertyNode>& InNode)
	: Node(InNode)
{
}

bool FPropertyHandleImpl::IsValidHandle() const
{
	const TSharedPtr<FDetailPropertyNode> Pinned = Node.Pin();
	return Pinned.IsValid() && Pinned->GetProperty() != nullptr;
}

FProperty* FPropertyHandleImpl::GetProperty() const
{
	const TSharedPtr<FDetailPropertyNode> Pinned = Node.Pin();
	return Pinned.IsValid() ? Pinned->GetProperty() : nullptr;
}

FPropertyAccess::Result FPropertyHandleImpl::GetReadAddress(uint8*& OutAddress) const
{
	OutAddress = nullptr;
	const TSharedPtr<FDetailPropertyNode> Pinned = Node.Pin();
	if (!Pinned.IsValid() || !Pinned->GetProperty())
	{
		return FPropertyAccess::Fail;
	}
	const FProperty* Property = Pinned->GetProperty();
	const TArray<UObject*> Objects = Pinned->GetObjects();
	for (UObject* Object : Objects)
	{
		uint8* Address = Pinned->GetValueAddress(Object);
		if (!Address)
		{
			return FPropertyAccess::Fail;
		}
		if (!OutAddress)
		{
			OutAddress = Address;
		}
		else if (!Property->Identical(OutAddress, Address))
		{
			OutAddress = nullptr;
			return FPropertyAccess::MultipleValues;
		}
	}
	return OutAddress ? FPropertyAccess::Success : FPropertyAccess::Fail;
}

template <typename T>
FPropertyAccess::Result FPropertyHandleImpl::GetTypedValue(T& OutValue) const
{
	const FProperty* Property = GetProperty();
	if (!HoldsType<T>(Property))
	{
		return FPropertyAccess::Fail;
	}
	uint8* Address = nullptr;
	const FPropertyAccess::Result Result = GetReadAddress(Address);
	if (Result == FPropertyAccess::Success)
	{
		OutValue = ReadValue<T>(Property, Address);
	}
	return Result;
}

namespace
{
	/** The engine announces a change when the typed text differs, case and all, from the value's text, even if the value stays. */
	bool ImportedTextDiffers(const FProperty& Property, const void* Address, const FString& ImportedText)
	{
		FString Previous;
		Property.ExportTextItem_Direct(Previous, Address, nullptr, nullptr, PPF_None);
		// A leading and a trailing quote are dropped first, each on its own.
		const int32 Start = ImportedText.StartsWith(TEXT("\""), ESearchCase::CaseSensitive) ? 1 : 0;
		const int32 End = ImportedText.Len() > 1 && ImportedText.EndsWith(TEXT("\""), ESearchCase::CaseSensitive) ? ImportedText.Len() - 1 : ImportedText.Len();
		return !ImportedText.Mid(Start, End - Start).Equals(Previous, ESearchCase::CaseSensitive);
	}
}

FPropertyAccess::Result FPropertyHandleImpl::WriteValues(TFunctionRef<bool(void* Value)> Apply, EPropertyValueSetFlags::Type Flags, const FString* ImportedText)
{
	const TSharedPtr<FDetailPropertyNode> Pinned = Node.Pin();
	FProperty* Property = Pinned.IsValid() ? Pinned->GetProperty() : nullptr;
	if (!Property || Property->HasAnyPropertyFlags(CPF_EditConst))
	{
		return FPropertyAccess::Fail;
	}
	const TArray<UObject*> Objects = Pinned->GetObjects();
	if (Objects.Num() == 0)
	{
		return FPropertyAccess::Fail;
	}

	FPropertyAccess::Result Result = FPropertyAccess::Success;
	bool bNotifiedPreChange = false;
	for (UObject* Object : Objects)
	{
		uint8* Address = Pinned->GetValueAddress(Object);
		if (!Address)
		{
			Result = FPropertyAccess::Fail;
			break;
		}
		FScopedPropertyValue NewValue(Property);
		Property->CopySingleValue(NewValue.Get(), Address);
		if (!Apply(NewValue.Get()))
		{
			Result = FPropertyAccess::Fail;
			break;
		}
		const bool bChanged = !Property->Identical(NewValue.Get(), Address);
		if (!bChanged && !(ImportedText && ImportedTextDiffers(*Property, Address, *ImportedText)))
		{
			continue;
		}
		if (!bNotifiedPreChange)
		{
			bNotifiedPreChange = true;
			Pinned->NotifyPreChange();
		}
		if (!bChanged)
		{
			continue;
		}
		Property->CopySingleValue(Address, NewValue.Get());
		Object->MarkPackageDirty();
	}

	const bool bFinished = (Flags & EPropertyValueSetFlags::InteractiveChange) == 0;
	if (bNotifiedPreChange)
	{
		Pinned->NotifyPostChange(bFinished ? EPropertyChangeType::ValueSet : EPropertyChangeType::Interactive);
	}
	// As the engine: a set that is not interactive ends with the view's finished-changing notification, changed or not.
	if (bFinished)
	{
		NotifyFinishedChangingProperties();
	}
	return Result;
}

template <typename T>
FPropertyAccess::Result FPropertyHandleImpl::SetTypedValue(const T& InValue, EPropertyValueSetFlags::Type Flags)
{
	const FProperty* Property = GetProperty();
	if (!HoldsType<T>(Property))
	{
		return FPropertyAccess::Fail;
	}
	return WriteValues([Property, &InValue](void* Value)
		{
			WriteValue(Property, Value, InValue);
			return true; },
		Flags);
}

FPropertyAccess::Result FPropertyHandleImpl::GetValueAsFormattedString(FString& OutValue, EPropertyPortFlags PortFlags) const
{
	uint8* Address = nullptr;
	const FPropertyAccess::Result Result = GetReadAddress(Address);
	if (Result == FPropertyAccess::Success)
	{
		OutValue.Empty();
		GetProperty()->ExportTextItem_Direct(OutValue, Address, nullptr, nullptr, PortFlags);
	}
	else if (Result == FPropertyAccess::MultipleValues)
	{
		OutValue = NSLOCTEXT("PropertyEditor", "MultipleValues", "Multiple Values").ToString();
	}
	return Result;
}

FPropertyAccess::Result FPropertyHandleImpl::SetValueFromFormattedString(const FString& InValue, EPropertyValueSetFlags::Type Flags)
{
	const FProperty* Property = GetProperty();
	// Names and object paths too long for a name are refused before anything is written.
	if ((CastField<FNameProperty>(Property) || CastField<FObjectProperty>(Property)) && InValue.Len() >= NAME_SIZE)
	{
		return FPropertyAccess::Fail;
	}
	// Text that does not import leaves the value as it was; the engine does not count that as a failure.
	return WriteValues([Property, &InValue](void* Value)
		{
			Property->ImportText_Direct(*InValue, Value, nullptr, PPF_None);
			return true; },
		Flags, &InValue);
}

// clang-format off
FPropertyAccess::Result FPropertyHandleImpl::GetValue(float& OutValue) const { return GetTypedValue(OutValue); }
FPropertyAccess::Result FPropertyHandleImpl::GetValue(double& OutValue) const { return GetTypedValue(OutValue); }
FPropertyAccess::Result FPropertyHandleImpl::GetValue(bool& OutValue) const { return GetTypedValue(OutValue); }
FPropertyAccess::Result FPropertyHandleImpl::GetValue(int8& OutValue) const { return GetTypedValue(OutValue); }
FPropertyAccess::Result FPropertyHandleImpl::GetValue(int16& OutValue) const { return GetTypedValue(OutValue); }
FPropertyAccess::Result FPropertyHandleImpl::GetValue(int32& OutValue) const { return GetTypedValue(OutValue); }
FPropertyAccess::Result FPropertyHandleImpl::GetValue(int64& OutValue) const { return GetTypedValue(OutValue); }
FPropertyAccess::Result FPropertyHandleImpl::GetValue(uint8& OutValue) const { return GetTypedValue(OutValue); }
FPropertyAccess::Result FPropertyHandleImpl::GetValue(uint16& OutValue) const { return GetTypedValue(OutValue); }
FPropertyAccess::Result FPropertyHandleImpl::GetValue(uint32& OutValue) const { return GetTypedValue(OutValue); }
FPropertyAccess::Result FPropertyHandleImpl::GetValue(uint64& OutValue) const { return GetTypedValue(OutValue); }
FPropertyAccess::Result FPropertyHandleImpl::GetValue(FString& OutValue) const { return GetTypedValue(OutValue); }
FPropertyAccess::Result FPropertyHandleImpl::GetValue(FText& OutValue) const { return GetTypedValue(OutValue); }
FPropertyAccess::Result FPropertyHandleImpl::GetValue(FName& OutValue) const { return GetTypedValue(OutValue); }
FPropertyAccess::Result FPropertyHandleImpl::GetValue(FVector& OutValue) const { return GetTypedValue(OutValue); }
FPropertyAccess::Result FPropertyHandleImpl::GetValue(FVector2D& OutValue) const { return GetTypedValue(OutValue); }
FPropertyAccess::Result FPropertyHandleImpl::GetValue(FRotator& OutValue) const { return GetTypedValue(OutValue); }
FPropertyAccess::Result FPropertyHandleImpl::GetValue(UObject*& OutValue) const { return GetTypedValue(OutValue); }

FPropertyAccess::Result FPropertyHandleImpl::SetValue(const float& InValue, EPropertyValueSetFlags::Type Flags) { return SetTypedValue(InValue, Flags); }
FPropertyAccess::Result FPropertyHandleImpl::SetValue(const double& InValue, EPropertyValueSetFlags::Type Flags) { return SetTypedValue(InValue, Flags); }
FPropertyAccess::Result FPropertyHandleImpl::SetValue(const bool& InValue, EPropertyValueSetFlags::Type Flags) { return SetTypedValue(InValue, Flags); }
FPropertyAccess::Result FPropertyHandleImpl::SetValue(const int8& InValue, EPropertyValueSetFlags::Type Flags) { return SetTypedValue(InValue, Flags); }
FPropertyAccess::Result FPropertyHandleImpl::SetValue(const int16& InValue, EPropertyValueSetFlags::Type Flags) { return SetTypedValue(InValue, Flags); }
FPropertyAccess::Result FPropertyHandleImpl::SetValue(const int32& InValue, EPropertyValueSetFlags::Type Flags) { return SetTypedValue(InValue, Flags); }
FPropertyAccess::Result FPropertyHandleImpl::SetValue(const int64& InValue, EPropertyValueSetFlags::Type Flags) { return SetTypedValue(InValue, Flags); }
FPropertyAccess::Result FPropertyHandleImpl::SetValue(const uint8& InValue, EPropertyValueSetFlags::Type Flags) { return SetTypedValue(InValue, Flags); }
FPropertyAccess::Result FPropertyHandleImpl::SetValue(const uint16& InValue, EPropertyValueSetFlags::Type Flags) { return SetTypedValue(InValue, Flags); }
FPropertyAccess::Result FPropertyHandleImpl::SetValue(const uint32& InValue, EPropertyValueSetFlags::Type Flags) { return SetTypedValue(InValue, Flags); }
FPropertyAccess::Result FPropertyHandleImpl::SetValue(const uint64& InValue, EPropertyValueSetFlags::Type Flags) { return SetTypedValue(InValue, Flags); }
FPropertyAccess::Result FPropertyHandleImpl::SetValue(const FString& InValue, EPropertyValueSetFlags::Type Flags) { return SetTypedValue(InValue, Flags); }
FPropertyAccess::Result FPropertyHandleImpl::SetValue(const FText& InValue, EPropertyValueSetFlags::Type Flags) { return SetTypedValue(InValue, Flags); }
FPropertyAccess::Result FPropertyHandleImpl::SetValue(const FName& InValue, EPropertyValueSetFlags::Type Flags) { return SetTypedValue(InValue, Flags); }
FPropertyAccess::Result FPropertyHandleImpl::SetValue(const FVector& InValue, EPropertyValueSetFlags::Type Flags) { return SetTypedValue(InValue, Flags); }
FPropertyAccess::Result FPropertyHandleImpl::SetValue(const FVector2D& InValue, EPropertyValueSetFlags::Type Flags) { return SetTypedValue(InValue, Flags); }
FPropertyAccess::Result FPropertyHandleImpl::SetValue(const FRotator& InValue, EPropertyValueSetFlags::Type Flags) { return SetTypedValue(InValue, Flags); }
// clang-format on

FPropertyAccess::Result FPropertyHandleImpl::GetValue(const UObject*& OutValue) const
{
	UObject* Value = nullptr;
	const FPropertyAccess::Result Result = GetTypedValue(Value);
	if (Result == FPropertyAccess::Success)
	{
		OutValue = Value;
	}
	return Result;
}

FPropertyAccess::Result FPropertyHandleImpl::GetValueData(void*& OutAddress) const
{
	uint8* Address = nullptr;
	const FPropertyAccess::Result Result = GetReadAddress(Address);
	OutAddress = Address;
	return Result;
}

FPropertyAccess::Result FPropertyHandleImpl::SetValue(UObject* const& InValue, EPropertyValueSetFlags::Type Flags)
{
	// An object of the wrong class does not import, as its path would not resolve to the property's class.
	const FObjectProperty* ObjectProperty = CastField<FObjectProperty>(GetProperty());
	if (ObjectProperty && InValue && !InValue->IsA(ObjectProperty->PropertyClass))
	{
		return FPropertyAccess::Fail;
	}
	return SetTypedValue(InValue, Flags);
}

FPropertyAccess::Result FPropertyHandleImpl::SetValue(const UObject* const& InValue, EPropertyValueSetFlags::Type Flags)
{
	UObject* const Value = const_cast<UObject*>(InValue);
	return SetValue(Value, Flags);
}

FPropertyAccess::Result FPropertyHandleImpl::SetValue(const TCHAR* InValue, EPropertyValueSetFlags::Type Flags)
{
	return SetValueFromFormattedString(FString(InValue), Flags);
}

void FPropertyHandleImpl::SetOnPropertyValueChanged(const FSimpleDelegate& InOnPropertyValueChanged)
{
	if (const TSharedPtr<FDetailPropertyNode> Pinned = Node.Pin())
	{
		Pinned->OnValueChanged.Add(InOnPropertyValueChanged);
	}
}

void FPropertyHandleImpl::SetOnChildPropertyValueChanged(const FSimpleDelegate& InOnChildPropertyValueChanged)
{
	if (const TSharedPtr<FDetailPropertyNode> Pinned = Node.Pin())
	{
		Pinned->OnChildValueChanged.Add(InOnChildPropertyValueChanged);
	}
}

void FPropertyHandleImpl::NotifyPreChange()
{
	if (const TSharedPtr<FDetailPropertyNode> Pinned = Node.Pin())
	{
		Pinned->NotifyPreChange();
	}
}

void FPropertyHandleImpl::NotifyPostChange(EPropertyChangeType::Type ChangeType)
{
	if (const TSharedPtr<FDetailPropertyNode> Pinned = Node.Pin())
	{
		Pinned->NotifyPostChange(ChangeType);
	}
}

void FPropertyHandleImpl::NotifyFinishedChangingProperties()
{
	const TSharedPtr<FDetailPropertyNode> Pinned = Node.Pin();
	if (Pinned.IsValid() && Pinned->GetView())
	{
		FPropertyChangedEvent Event(Pinned->GetProperty(), EPropertyChangeType::ValueSet);
		Event.SetActiveMemberProperty(Pinned->GetMemberProperty());
		Pinned->GetView()->NotifyFinishedChangingProperties(Event);
	}
}

TSharedPtr<IPropertyHandle> FPropertyHandleImpl::GetChildHandle(FName ChildName, bool bRecurse) const
{
	const TSharedPtr<FDetailPropertyNode> Pinned = Node.Pin();
	const TSharedPtr<FDetailPropertyNode> Child = Pinned.IsValid() ? Pinned->FindChild(ChildName, bRecurse) : nullptr;
	return Child.IsValid() ? MakeShared<FPropertyHandleImpl>(Child) : TSharedPtr<IPropertyHandle>();
}

TSharedPtr<IPropertyHandle> FPropertyHandleImpl::GetChildHandle(uint32 Index) const
{
	const TSharedPtr<FDetailPropertyNode> Pinned = Node.Pin();
	if (!Pinned.IsValid())
	{
		return nullptr;
	}
	const TArray<TSharedRef<FDetailPropertyNode>>& Children = Pinned->GetChildren();
	return Children.IsValidIndex(static_cast<int32>(Index)) ? MakeShared<FPropertyHandleImpl>(TSharedPtr<FDetailPropertyNode>(Children[static_cast<int32>(Index)])) : TSharedPtr<IPropertyHandle>();
}

TSharedPtr<IPropertyHandle> FPropertyHandleImpl::GetParentHandle() const
{
	const TSharedPtr<FDetailPropertyNode> Pinned = Node.Pin();
	if (!Pinned.IsValid() || !Pinned->GetParent() || Pinned->GetParent()->IsRoot())
	{
		return nullptr;
	}
	return MakeShared<FPropertyHandleImpl>(TSharedPtr<FDetailPropertyNode>(Pinned->GetParent()->AsShared()));
}

FPropertyAccess::Result FPropertyHandleImpl::GetNumChildren(uint32& OutNumChildren) const
{
	OutNumChildren = 0;
	const TSharedPtr<FDetailPropertyNode> Pinned = Node.Pin();
	if (!Pinned.IsValid())
	{
		return FPropertyAccess::Fail;
	}
	OutNumChildren = static_cast<uint32>(Pinned->GetChildren().Num());
	return FPropertyAccess::Success;
}

int32 FPropertyHandleImpl::GetIndexInArray() const
{
	const TSharedPtr<FDetailPropertyNode> Pinned = Node.Pin();
	return Pinned.IsValid() ? Pinned->GetArrayIndex() : INDEX_NONE;
}

uint32 FPropertyHandleImpl::GetNumOuterObjects() const
{
	const TSharedPtr<FDetailPropertyNode> Pinned = Node.Pin();
	return Pinned.IsValid() ? static_cast<uint32>(Pinned->GetObjects().Num()) : 0;
}

void FPropertyHandleImpl::GetOuterObjects(TArray<UObject*>& OuterObjects) const
{
	const TSharedPtr<FDetailPropertyNode> Pinned = Node.Pin();
	if (Pinned.IsValid())
	{
		OuterObjects.Append(Pinned->GetObjects());
	}
}

void FPropertyHandleImpl::AccessRawData(TArray<void*>& RawData)
{
	RawData.Empty();
	if (const TSharedPtr<FDetailPropertyNode> Pinned = Node.Pin())
	{
		for (UObject* Object : Pinned->GetObjects())
		{
			RawData.Add(Pinned->GetValueAddress(Object));
		}
	}
}

void FPropertyHandleImpl::AccessRawData(TArray<const void*>& RawData) const
{
	RawData.Empty();
	if (const TSharedPtr<FDetailPropertyNode> Pinned = Node.Pin())
	{
		for (UObject* Object : Pinned->GetObjects())
		{
			RawData.Add(Pinned->GetValueAddress(Object));
		}
	}
}

void FPropertyHandleImpl::MarkHiddenByCustomization()
{
	if (const TSharedPtr<FDetailPropertyNode> Pinned = Node.Pin())
	{
		Pinned->bHiddenByCustomization = true;
	}
}

bool FPropertyHandleImpl::IsCustomized() const
{
	const TSharedPtr<FDetailPropertyNode> Pinned = Node.Pin();
	return Pinned.IsValid() && Pinned->bCustomized;
}

FText FPropertyHandleImpl::GetPropertyDisplayName() const
{
	const TSharedPtr<FDetailPropertyNode> Pinned = Node.Pin();
	if (!Pinned.IsValid() || !Pinned->GetProperty())
	{
		return FText::GetEmpty();
	}
	if (Pinned->GetArrayIndex() != INDEX_NONE)
	{
		return FText::AsNumber(Pinned->GetArrayIndex());
	}
	return Pinned->GetProperty()->GetDisplayNameText();
}

TSharedRef<SWidget> FPropertyHandleImpl::CreatePropertyNameWidget(const FText& NameOverride, const FText& ToolTipOverride) const
{
	return SNew(STextBlock)
		.Text(NameOverride.IsEmpty() ? GetPropertyDisplayName() : NameOverride)
		.ToolTipText(ToolTipOverride)
		.Font(IDetailLayoutBuilder::GetDetailFont());
}

TSharedRef<SWidget> FPropertyHandleImpl::CreatePropertyValueWidget(bool bDisplayDefaultPropertyButtons) const
{
	return PropertyValueWidgets::Make(ConstCastSharedRef<IPropertyHandle>(AsShared())).Widget;
}
