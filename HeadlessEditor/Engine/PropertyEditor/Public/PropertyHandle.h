#pragma once

#include "CoreMinimal.h"
#include "PropertyEditorModule.h"
#include "UObject/UnrealType.h"
#include "Widgets/SWidget.h"

class UObject;

/** How a value set through a property handle is applied; constants, as the engine has them. */
namespace EPropertyValueSetFlags
{
	typedef uint32 Type;

	const Type DefaultFlags = 0;
	/** No undo transaction is made for the change. */
	const Type NotTransactable = 1 << 0;
	/** The change is part of a drag or other interactive edit. */
	const Type InteractiveChange = 1 << 1;
	/** Object values are instanced on import. */
	const Type InstanceObjects = 1 << 2;
}

/** A property shown in a details panel, over every object the panel edits. */
class IPropertyHandle : public TSharedFromThis<IPropertyHandle>
{
public:
	virtual ~IPropertyHandle() {}

	/** Whether the handle still refers to a property of the edited objects. */
	virtual bool IsValidHandle() const = 0;
	virtual FProperty* GetProperty() const = 0;

	virtual FPropertyAccess::Result GetValueAsFormattedString(FString& OutValue, EPropertyPortFlags PortFlags = PPF_PropertyWindow) const = 0;
	virtual FPropertyAccess::Result SetValueFromFormattedString(const FString& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) = 0;

	virtual FPropertyAccess::Result GetValue(float& OutValue) const = 0;
	virtual FPropertyAccess::Result GetValue(double& OutValue) const = 0;
	virtual FPropertyAccess::Result GetValue(bool& OutValue) const = 0;
	virtual FPropertyAccess::Result GetValue(int8& OutValue) const = 0;
	virtual FPropertyAccess::Result GetValue(int16& OutValue) const = 0;
	virtual FPropertyAccess::Result GetValue(int32& OutValue) const = 0;
	virtual FPropertyAccess::Result GetValue(int64& OutValue) const = 0;
	virtual FPropertyAccess::Result GetValue(uint8& OutValue) const = 0;
	virtual FPropertyAccess::Result GetValue(uint16& OutValue) const = 0;
	virtual FPropertyAccess::Result GetValue(uint32& OutValue) const = 0;
	virtual FPropertyAccess::Result GetValue(uint64& OutValue) const = 0;
	virtual FPropertyAccess::Result GetValue(FString& OutValue) const = 0;
	virtual FPropertyAccess::Result GetValue(FText& OutValue) const = 0;
	virtual FPropertyAccess::Result GetValue(FName& OutValue) const = 0;
	virtual FPropertyAccess::Result GetValue(FVector& OutValue) const = 0;
	virtual FPropertyAccess::Result GetValue(FVector2D& OutValue) const = 0;
	virtual FPropertyAccess::Result GetValue(FRotator& OutValue) const = 0;
	virtual FPropertyAccess::Result GetValue(UObject*& OutValue) const = 0;
	virtual FPropertyAccess::Result GetValue(const UObject*& OutValue) const = 0;
	virtual FPropertyAccess::Result GetValueData(void*& OutAddress) const = 0;

	virtual FPropertyAccess::Result SetValue(const float& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) = 0;
	virtual FPropertyAccess::Result SetValue(const double& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) = 0;
	virtual FPropertyAccess::Result SetValue(const bool& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) = 0;
	virtual FPropertyAccess::Result SetValue(const int8& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) = 0;
	virtual FPropertyAccess::Result SetValue(const int16& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) = 0;
	virtual FPropertyAccess::Result SetValue(const int32& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) = 0;
	virtual FPropertyAccess::Result SetValue(const int64& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) = 0;
	virtual FPropertyAccess::Result SetValue(const uint8& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) = 0;
	virtual FPropertyAccess::Result SetValue(const uint16& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) = 0;
	virtual FPropertyAccess::Result SetValue(const uint32& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) = 0;
	virtual FPropertyAccess::Result SetValue(const uint64& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) = 0;
	virtual FPropertyAccess::Result SetValue(const FString& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) = 0;
	virtual FPropertyAccess::Result SetValue(const FText& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) = 0;
	virtual FPropertyAccess::Result SetValue(const FName& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) = 0;
	virtual FPropertyAccess::Result SetValue(const FVector& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) = 0;
	virtual FPropertyAccess::Result SetValue(const FVector2D& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) = 0;
	virtual FPropertyAccess::Result SetValue(const FRotator& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) = 0;
	virtual FPropertyAccess::Result SetValue(UObject* const& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) = 0;
	virtual FPropertyAccess::Result SetValue(const UObject* const& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) = 0;
	virtual FPropertyAccess::Result SetValue(const TCHAR* InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) = 0;

	/** Called after the value changed through any handle to the same property. */
	virtual void SetOnPropertyValueChanged(const FSimpleDelegate& InOnPropertyValueChanged) = 0;
	/** Called after a value below this property changed. */
	virtual void SetOnChildPropertyValueChanged(const FSimpleDelegate& InOnChildPropertyValueChanged) = 0;

	virtual void NotifyPreChange() = 0;
	virtual void NotifyPostChange(EPropertyChangeType::Type ChangeType) = 0;
	virtual void NotifyFinishedChangingProperties() = 0;

	virtual TSharedPtr<IPropertyHandle> GetChildHandle(FName ChildName, bool bRecurse = true) const = 0;
	virtual TSharedPtr<IPropertyHandle> GetChildHandle(uint32 Index) const = 0;
	virtual TSharedPtr<IPropertyHandle> GetParentHandle() const = 0;
	virtual FPropertyAccess::Result GetNumChildren(uint32& OutNumChildren) const = 0;
	virtual int32 GetIndexInArray() const = 0;
	virtual uint32 GetNumOuterObjects() const = 0;
	virtual void GetOuterObjects(TArray<UObject*>& OuterObjects) const = 0;

	/** One pointer per edited object, at the property's value. */
	virtual void AccessRawData(TArray<void*>& RawData) = 0;
	virtual void AccessRawData(TArray<const void*>& RawData) const = 0;

	/** Keeps the property's default row from being generated; the customisation shows it itself. */
	virtual void MarkHiddenByCustomization() = 0;
	virtual bool IsCustomized() const = 0;

	virtual FText GetPropertyDisplayName() const = 0;
	virtual TSharedRef<SWidget> CreatePropertyNameWidget(const FText& NameOverride = FText::GetEmpty(), const FText& ToolTipOverride = FText::GetEmpty()) const = 0;
	virtual TSharedRef<SWidget> CreatePropertyValueWidget(bool bDisplayDefaultPropertyButtons = true) const = 0;
};
