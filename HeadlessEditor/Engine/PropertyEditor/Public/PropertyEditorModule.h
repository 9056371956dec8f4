#pragma once

#include "CoreMinimal.h"
#include "IDetailCustomization.h"
#include "IDetailsView.h"
#include "IPropertyTypeCustomization.h"
#include "Modules/ModuleInterface.h"
#include "PropertyEditorDelegates.h"

class IPropertyHandle;
class UStruct;

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

typedef TMap<FName, FDetailLayoutCallback> FCustomDetailLayoutNameMap;

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

	/** Creates a details view; every view the module made is built again when customisation modules change. */
	virtual TSharedRef<class IDetailsView> CreateDetailView(const struct FDetailsViewArgs& DetailsViewArgs);

	/** The layout for a property of that type: one whose identifier claims the property, else the type's own. */
	FPropertyTypeLayoutCallback FindPropertyTypeLayoutCallback(FName PropertyTypeName, const IPropertyHandle& PropertyHandle, const FCustomPropertyTypeLayoutMap& InstancedPropertyTypeLayoutMap);
	bool IsCustomizedStruct(const UStruct* Struct, const FCustomPropertyTypeLayoutMap& InstancePropertyTypeLayoutMap) const;

	const FCustomDetailLayoutNameMap& GetClassNameToDetailLayoutNameMap() const { return ClassNameToDetailLayoutNameMap; }

private:
	FCustomDetailLayoutNameMap ClassNameToDetailLayoutNameMap;
};
