#pragma once

#include "CoreMinimal.h"
#include "Framework/SlateDelegates.h"
#include "Layout/Visibility.h"
#include "Misc/Attribute.h"
#include "PropertyHandle.h"

class FDetailWidgetRow;
class FDetailWidgetDecl;

/** A property's row in a details panel, which a customisation may adjust or replace. */
class IDetailPropertyRow
{
public:
	virtual ~IDetailPropertyRow() {}

	virtual TSharedPtr<IPropertyHandle> GetPropertyHandle() const = 0;
	virtual IDetailPropertyRow& DisplayName(const FText& InDisplayName) = 0;
	virtual IDetailPropertyRow& ToolTip(const FText& InToolTip) = 0;
	virtual IDetailPropertyRow& ShowPropertyButtons(bool bShowPropertyButtons) = 0;
	virtual IDetailPropertyRow& IsEnabled(TAttribute<bool> InIsEnabled) = 0;
	virtual IDetailPropertyRow& ShouldAutoExpand(bool bForceExpansion = true) = 0;
	virtual IDetailPropertyRow& Visibility(TAttribute<EVisibility> Visibility) = 0;
	virtual void GetDefaultWidgets(TSharedPtr<SWidget>& OutNameWidget, TSharedPtr<SWidget>& OutValueWidget, bool bAddWidgetDecoration = false) = 0;
	virtual void GetDefaultWidgets(TSharedPtr<SWidget>& OutNameWidget, TSharedPtr<SWidget>& OutValueWidget, FDetailWidgetRow& Row, bool bAddWidgetDecoration = false) = 0;
	/** Replaces the row's widgets; the property's children are shown only when asked. */
	virtual FDetailWidgetRow& CustomWidget(bool bShowChildren = false) = 0;
	virtual FDetailWidgetDecl* CustomNameWidget() = 0;
	virtual FDetailWidgetDecl* CustomValueWidget() = 0;
};
