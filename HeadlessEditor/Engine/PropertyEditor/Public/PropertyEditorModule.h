#pragma once

#include "CoreMinimal.h"
#include "IDetailCustomization.h"
#include "IPropertyTypeCustomization.h"
#include "Modules/ModuleInterface.h"
#include "PropertyEditorDelegates.h"

class IPropertyHandle;

/** Identifies, for one registration, which properties of a type it customises. */
class IPropertyTypeIdentifier
{
public:
	virtual ~IPropertyTypeIdentifier() {}

	virtual bool IsPropertyTypeCustomized(const IPropertyHandle& PropertyHandle) const = 0;
};

namespace FPropertyAccess
{
	enum Result
	{
		/** Multiple values were found so the value could not be read */
		MultipleValues,
		/** Failed to set or get the value */
		Fail,
		/** Successfully set the got the value */
		Success,
	};
}

struct FDetailLayoutCallback
{
	FOnGetDetailCustomizationInstance DetailLayoutDelegate;
	int32 Order = 0;
};

struct FPropertyTypeLayoutCallback
{
	FOnGetPropertyTypeCustomizationInstance PropertyTypeLayoutDelegate;
	TSharedPtr<IPropertyTypeIdentifier> PropertyTypeIdentifier;

	bool IsValid() const { return PropertyTypeLayoutDelegate.IsBound(); }
	TSharedRef<IPropertyTypeCustomization> GetCustomizationInstance() const { return PropertyTypeLayoutDelegate.Execute(); }
};

struct FPropertyTypeLayoutCallbackList
{
	FPropertyTypeLayoutCallback BaseCallback;
	TArray<FPropertyTypeLayoutCallback> IdentifierList;
};

typedef TMap<FName, FDetailLayoutCallback> FCustomDetailLayoutNameMap;
typedef TMap<FName, FPropertyTypeLayoutCallbackList> FCustomPropertyTypeLayoutMap;

/** The property editor: details panels and the customisations registered for them. */
class FPropertyEditorModule : public IModuleInterface
{
public:
	virtual void StartupModule() override;
	virtual void ShutdownModule() override;

	virtual void RegisterCustomClassLayout(FName ClassName, FOnGetDetailCustomizationInstance DetailLayoutDelegate);
	virtual void UnregisterCustomClassLayout(FName ClassName);
	virtual void RegisterCustomPropertyTypeLayout(FName PropertyTypeName, FOnGetPropertyTypeCustomizationInstance PropertyTypeLayoutDelegate, TSharedPtr<IPropertyTypeIdentifier> Identifier = nullptr);
	virtual void UnregisterCustomPropertyTypeLayout(FName PropertyTypeName, TSharedPtr<IPropertyTypeIdentifier> InIdentifier = nullptr);
	virtual void NotifyCustomizationModuleChanged();

	const FCustomDetailLayoutNameMap& GetClassNameToDetailLayoutNameMap() const { return ClassNameToDetailLayoutNameMap; }

	/** Headless editor: the type layouts registered without an instance map, as the details view reads them. */
	const FCustomPropertyTypeLayoutMap& GetGlobalPropertyTypeToLayoutMap() const { return GlobalPropertyTypeToLayoutMap; }
	/** Headless editor: how often customisation modules reported a change (open panels refresh each time). */
	int32 GetCustomizationModuleChangedCount() const { return CustomizationModuleChangedCount; }

private:
	FCustomDetailLayoutNameMap ClassNameToDetailLayoutNameMap;
	FCustomPropertyTypeLayoutMap GlobalPropertyTypeToLayoutMap;
	int32 CustomizationModuleChangedCount = 0;
};
