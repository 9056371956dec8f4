#pragma once

#include "CoreMinimal.h"

class FDetailWidgetRow;
class IDetailCategoryBuilder;
class IDetailGroup;
class IDetailPropertyRow;
class IPropertyHandle;
class SWidget;

/** Adds the child rows under a customised struct property. */
class IDetailChildrenBuilder
{
public:
	virtual ~IDetailChildrenBuilder() {}

	virtual IDetailGroup& AddGroup(FName GroupName, const FText& LocalizedDisplayName) = 0;
	virtual FDetailWidgetRow& AddCustomRow(const FText& SearchString) = 0;
	virtual IDetailPropertyRow& AddProperty(TSharedRef<IPropertyHandle> PropertyHandle) = 0;
	virtual TSharedRef<SWidget> GenerateStructValueWidget(TSharedRef<IPropertyHandle> StructPropertyHandle) = 0;
	virtual IDetailCategoryBuilder& GetParentCategory() const = 0;
	virtual IDetailGroup* GetParentGroup() const = 0;
};
