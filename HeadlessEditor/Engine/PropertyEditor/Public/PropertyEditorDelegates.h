#pragma once

#include "CoreMinimal.h"

class IDetailCustomization;
class IPropertyHandle;
class IPropertyTypeCustomization;
class IPropertyTypeIdentifier;
struct FPropertyChangedEvent;

DECLARE_DELEGATE_RetVal(TSharedRef<IDetailCustomization>, FOnGetDetailCustomizationInstance);
DECLARE_DELEGATE_RetVal(TSharedRef<IPropertyTypeCustomization>, FOnGetPropertyTypeCustomizationInstance);
DECLARE_MULTICAST_DELEGATE_OneParam(FOnFinishedChangingProperties, const FPropertyChangedEvent&);

/** A class layout registration; registrations are applied in the order they were made. */
struct FDetailLayoutCallback
{
	FOnGetDetailCustomizationInstance DetailLayoutDelegate;
	int32 Order = 0;
};

/** A property type layout registration, limited to some properties of the type by its identifier. */
struct FPropertyTypeLayoutCallback
{
	FOnGetPropertyTypeCustomizationInstance PropertyTypeLayoutDelegate;

	TSharedPtr<IPropertyTypeIdentifier> PropertyTypeIdentifier;

	bool IsValid() const { return PropertyTypeLayoutDelegate.IsBound(); }

	TSharedRef<IPropertyTypeCustomization> GetCustomizationInstance() const;
};

/** The layouts registered for one property type: one without an identifier, any number with one. */
struct FPropertyTypeLayoutCallbackList
{
	FPropertyTypeLayoutCallback BaseCallback;

	TArray<FPropertyTypeLayoutCallback> IdentifierList;

	void Add(const FPropertyTypeLayoutCallback& NewCallback);

	void Remove(const TSharedPtr<IPropertyTypeIdentifier>& InIdentifier);

	const FPropertyTypeLayoutCallback& Find(const IPropertyHandle& PropertyHandle) const;
};

typedef TMap<FName, FPropertyTypeLayoutCallbackList> FCustomPropertyTypeLayoutMap;
