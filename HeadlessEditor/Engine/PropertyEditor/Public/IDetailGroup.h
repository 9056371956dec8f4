#pragma once

#include "CoreMinimal.h"
#include "PropertyHandle.h"

class FDetailWidgetRow;
class IDetailPropertyRow;

/** A collapsible group of rows inside a category or under a struct. */
class IDetailGroup
{
public:
	virtual ~IDetailGroup() {}

	virtual FDetailWidgetRow& HeaderRow() = 0;
	virtual IDetailPropertyRow& HeaderProperty(TSharedRef<IPropertyHandle> PropertyHandle) = 0;
	virtual class FDetailWidgetRow& AddWidgetRow() = 0;
	virtual class IDetailPropertyRow& AddPropertyRow(TSharedRef<IPropertyHandle> PropertyHandle) = 0;
	virtual IDetailGroup& AddGroup(FName NewGroupName, const FText& InLocalizedDisplayName, bool bInStartExpanded = false) = 0;
	virtual void ToggleExpansion(bool bExpand) = 0;
	virtual bool GetExpansionState() const = 0;
	virtual FName GetGroupName() const = 0;
};
