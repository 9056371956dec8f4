#pragma once

#include "CoreMinimal.h"
#include "DetailPropertyNode.h"
#include "PropertyHandle.h"

/**
 * A property handle over a details-view node. It reads and writes the objects only through the
 * reflection data: the node gives each object's value address, the property gives type and copy.
 */
class FPropertyHandleImpl : public IPropertyHandle
{
public:
	explicit FPropertyHandleImpl(const TSharedPtr<FDetailPropertyNode>& InNode);

	TSharedPtr<FDetailPropertyNode> GetNode() const { return Node.Pin(); }

	virtual bool IsValidHandle() const override;
	virtual FProperty* GetProperty() const override;

	virtual FPropertyAccess::Result GetValueAsFormattedString(FString& OutValue, EPropertyPortFlags PortFlags = PPF_PropertyWindow) const override;
	virtual FPropertyAccess::Result SetValueFromFormattedString(const FString& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) override;

	virtual FPropertyAccess::Result GetValue(float& OutValue) const override;
	virtual FPropertyAccess::Result GetValue(double& OutValue) const override;
	virtual FPropertyAccess::Result GetValue(bool& OutValue) const override;
	virtual FPropertyAccess::Result GetValue(int8& OutValue) const override;
	virtual FPropertyAccess::Result GetValue(int16& OutValue) const override;
	virtual FPropertyAccess::Result GetValue(int32& OutValue) const override;
	virtual FPropertyAccess::Result GetValue(int64& OutValue) const override;
	virtual FPropertyAccess::Result GetValue(uint8& OutValue) const override;
	virtual FPropertyAccess::Result GetValue(uint16& OutValue) const override;
	virtual FPropertyAccess::Result GetValue(uint32& OutValue) const override;
	virtual FPropertyAccess::Result GetValue(uint64& OutValue) const override;
	virtual FPropertyAccess::Result GetValue(FString& OutValue) const override;
	virtual FPropertyAccess::Result GetValue(FText& OutValue) const override;
	virtual FPropertyAccess::Result GetValue(FName& OutValue) const override;
	virtual FPropertyAccess::Result GetValue(FVector& OutValue) const override;
	virtual FPropertyAccess::Result GetValue(FVector2D& OutValue) const override;
	virtual FPropertyAccess::Result GetValue(FRotator& OutValue) const override;
	virtual FPropertyAccess::Result GetValue(UObject*& OutValue) const override;
	virtual FPropertyAccess::Result GetValue(const UObject*& OutValue) const override;
	virtual FPropertyAccess::Result GetValueData(void*& OutAddress) const override;

	virtual FPropertyAccess::Result SetValue(const float& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) override;
	virtual FPropertyAccess::Result SetValue(const double& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) override;
	virtual FPropertyAccess::Result SetValue(const bool& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) override;
	virtual FPropertyAccess::Result SetValue(const int8& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) override;
	virtual FPropertyAccess::Result SetValue(const int16& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) override;
	virtual FPropertyAccess::Result SetValue(const int32& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) override;
	virtual FPropertyAccess::Result SetValue(const int64& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) override;
	virtual FPropertyAccess::Result SetValue(const uint8& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) override;
	virtual FPropertyAccess::Result SetValue(const uint16& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) override;
	virtual FPropertyAccess::Result SetValue(const uint32& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) override;
	virtual FPropertyAccess::Result SetValue(const uint64& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) override;
	virtual FPropertyAccess::Result SetValue(const FString& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) override;
	virtual FPropertyAccess::Result SetValue(const FText& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) override;
	virtual FPropertyAccess::Result SetValue(const FName& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) override;
	virtual FPropertyAccess::Result SetValue(const FVector& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) override;
	virtual FPropertyAccess::Result SetValue(const FVector2D& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) override;
	virtual FPropertyAccess::Result SetValue(const FRotator& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) override;
	virtual FPropertyAccess::Result SetValue(UObject* const& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) override;
	virtual FPropertyAccess::Result SetValue(const UObject* const& InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) override;
	virtual FPropertyAccess::Result SetValue(const TCHAR* InValue, EPropertyValueSetFlags::Type Flags = EPropertyValueSetFlags::DefaultFlags) override;

	virtual void SetOnPropertyValueChanged(const FSimpleDelegate& InOnPropertyValueChanged) override;
	virtual void SetOnChildPropertyValueChanged(const FSimpleDelegate& InOnChildPropertyValueChanged) override;
	virtual void NotifyPreChange() override;
	virtual void NotifyPostChange(EPropertyChangeType::Type ChangeType) override;
	virtual void NotifyFinishedChangingProperties() override;

	virtual TSharedPtr<IPropertyHandle> GetChildHandle(FName ChildName, bool bRecurse = true) const override;
	virtual TSharedPtr<IPropertyHandle> GetChildHandle(uint32 Index) const override;
	virtual TSharedPtr<IPropertyHandle> GetParentHandle() const override;
	virtual FPropertyAccess::Result GetNumChildren(uint32& OutNumChildren) const override;
	virtual int32 GetIndexInArray() const override;
	virtual uint32 GetNumOuterObjects() const override;
	virtual void GetOuterObjects(TArray<UObject*>& OuterObjects) const override;
	virtual void AccessRawData(TArray<void*>& RawData) override;
	virtual void AccessRawData(TArray<const void*>& RawData) const override;
	virtual void MarkHiddenByCustomization() override;
	virtual bool IsCustomized() const override;
	virtual FText GetPropertyDisplayName() const override;
	virtual TSharedRef<SWidget> CreatePropertyNameWidget(const FText& NameOverride = FText::GetEmpty(), const FText& ToolTipOverride = FText::GetEmpty()) const override;
	virtual TSharedRef<SWidget> CreatePropertyValueWidget(bool bDisplayDefaultPropertyButtons = true) const override;

private:
	template <typename T>
	FPropertyAccess::Result GetTypedValue(T& OutValue) const;
	template <typename T>
	FPropertyAccess::Result SetTypedValue(const T& InValue, EPropertyValueSetFlags::Type Flags);

	/** The value's address in every object: Success when they all hold the same value. */
	FPropertyAccess::Result GetReadAddress(uint8*& OutAddress) const;
	/**
	 * Writes each object's value through Apply on a copy; only a real change notifies (pre-change
	 * once, the write, then post-change), as the engine's property editor does. Text imports also
	 * notify when ImportedText differs from the value's text.
	 */
	FPropertyAccess::Result WriteValues(TFunctionRef<bool(void* Value)> Apply, EPropertyValueSetFlags::Type Flags, const FString* ImportedText = nullptr);

	TWeakPtr<FDetailPropertyNode> Node;
};
