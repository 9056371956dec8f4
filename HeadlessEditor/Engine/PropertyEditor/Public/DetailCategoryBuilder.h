#pragma once

#include "CoreMinimal.h"
#include "Framework/SlateDelegates.h"
#include "PropertyHandle.h"
#include "Widgets/SWidget.h"

class FDetailWidgetRow;
class IDetailGroup;
class IDetailPropertyRow;

/** A row of a details panel's layout. */
class IDetailLayoutRow
{
public:
	virtual ~IDetailLayoutRow() {}

	virtual FName GetRowName() const = 0;
};

/** Where a property is placed inside its category. */
namespace EPropertyLocation
{
	enum Type
	{
		/** Shown in the category's simple (always visible) section. */
		Common,
		/** Shown in the category's advanced section. */
		Advanced,
		/** Where the property's own flags place it. */
		Default,
	};
}

/** One category of a details panel, to which customisations add rows and groups. */
class IDetailCategoryBuilder
{
public:
	virtual ~IDetailCategoryBuilder() {}

	virtual IDetailCategoryBuilder& InitiallyCollapsed(bool bShouldBeInitiallyCollapsed) = 0;
	virtual IDetailCategoryBuilder& HeaderContent(TSharedRef<SWidget> InHeaderContent) = 0;
	virtual int32 GetSortOrder() const = 0;
	virtual void SetSortOrder(int32 InSortOrder) = 0;
	virtual IDetailPropertyRow& AddProperty(FName PropertyPath, UClass* ClassOutermost = nullptr, FName InstanceName = NAME_None, EPropertyLocation::Type Location = EPropertyLocation::Default) = 0;
	virtual IDetailPropertyRow& AddProperty(TSharedPtr<IPropertyHandle> PropertyHandle, EPropertyLocation::Type Location = EPropertyLocation::Default) = 0;
	virtual FDetailWidgetRow& AddCustomRow(const FText& FilterString, bool bForAdvanced = false) = 0;
	virtual IDetailGroup& AddGroup(FName GroupName, const FText& LocalizedDisplayName, bool bForAdvanced = false, bool bStartExpanded = false) = 0;
	virtual void GetDefaultProperties(TArray<TSharedRef<IPropertyHandle>>& OutAllProperties, bool bSimpleProperties = true, bool bAdvancedProperties = true) = 0;
	virtual class IDetailLayoutBuilder& GetParentLayout() const = 0;
	virtual const FText& GetDisplayName() const = 0;
	virtual void SetCategoryVisibility(bool bVisible) = 0;
	virtual void SetShowAdvanced(bool bShowAdvanced) = 0;
};
