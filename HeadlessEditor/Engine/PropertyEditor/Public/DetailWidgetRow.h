#pragma once

#include "CoreMinimal.h"
#include "DetailCategoryBuilder.h"
#include "Layout/Visibility.h"
#include "Misc/Attribute.h"
#include "Types/SlateEnums.h"
#include "Widgets/SNullWidget.h"
#include "Widgets/SWidget.h"

class FDetailWidgetRow;

/** One slot of a details row (name, value, extension or whole row) and its layout. */
class FDetailWidgetDecl
{
public:
	FDetailWidgetDecl(FDetailWidgetRow& InParentDecl, float InMinWidth, float InMaxWidth, EHorizontalAlignment InHAlign, EVerticalAlignment InVAlign)
		: Widget(SNullWidget::NullWidget)
		, HorizontalAlignment(InHAlign)
		, VerticalAlignment(InVAlign)
		, MinWidth(InMinWidth)
		, MaxWidth(InMaxWidth)
		, ParentDecl(&InParentDecl)
	{
	}

	FDetailWidgetDecl(FDetailWidgetRow& InParentDecl, const FDetailWidgetDecl& Other)
		: Widget(Other.Widget)
		, HorizontalAlignment(Other.HorizontalAlignment)
		, VerticalAlignment(Other.VerticalAlignment)
		, MinWidth(Other.MinWidth)
		, MaxWidth(Other.MaxWidth)
		, ParentDecl(&InParentDecl)
	{
	}

	FDetailWidgetRow& operator[](TSharedRef<SWidget> InWidget)
	{
		Widget = InWidget;
		return *ParentDecl;
	}

	FDetailWidgetDecl& VAlign(EVerticalAlignment InAlignment)
	{
		VerticalAlignment = InAlignment;
		return *this;
	}

	FDetailWidgetDecl& HAlign(EHorizontalAlignment InAlignment)
	{
		HorizontalAlignment = InAlignment;
		return *this;
	}

	FDetailWidgetDecl& MinDesiredWidth(TOptional<float> InMinWidth)
	{
		MinWidth = InMinWidth;
		return *this;
	}

	FDetailWidgetDecl& MaxDesiredWidth(TOptional<float> InMaxWidth)
	{
		MaxWidth = InMaxWidth;
		return *this;
	}

	TSharedRef<SWidget> Widget;
	EHorizontalAlignment HorizontalAlignment;
	EVerticalAlignment VerticalAlignment;
	TOptional<float> MinWidth;
	TOptional<float> MaxWidth;

private:
	FDetailWidgetRow* ParentDecl;
};

/** The widgets of one details row, with its filter text, visibility and enabled state. */
class FDetailWidgetRow : public IDetailLayoutRow
{
public:
	PROPERTYEDITOR_API static const float DefaultValueMinWidth;
	PROPERTYEDITOR_API static const float DefaultValueMaxWidth;

	FDetailWidgetRow()
		: NameWidget(*this, 0.0f, 0.0f, HAlign_Left, VAlign_Center)
		, ValueWidget(*this, DefaultValueMinWidth, DefaultValueMaxWidth, HAlign_Left, VAlign_Center)
		, ExtensionWidget(*this, 0.0f, 0.0f, HAlign_Right, VAlign_Center)
		, WholeRowWidget(*this, 0.0f, 0.0f, HAlign_Fill, VAlign_Fill)
		, VisibilityAttr(EVisibility::Visible)
		, IsEnabledAttr(true)
	{
	}

	FDetailWidgetRow(const FDetailWidgetRow& Other)
		: FDetailWidgetRow()
	{
		*this = Other;
	}

	FDetailWidgetRow& operator=(const FDetailWidgetRow& Other)
	{
		NameWidget = FDetailWidgetDecl(*this, Other.NameWidget);
		ValueWidget = FDetailWidgetDecl(*this, Other.ValueWidget);
		ExtensionWidget = FDetailWidgetDecl(*this, Other.ExtensionWidget);
		WholeRowWidget = FDetailWidgetDecl(*this, Other.WholeRowWidget);
		VisibilityAttr = Other.VisibilityAttr;
		IsEnabledAttr = Other.IsEnabledAttr;
		IsValueEnabledAttr = Other.IsValueEnabledAttr;
		FilterTextString = Other.FilterTextString;
		RowTagName = Other.RowTagName;
		return *this;
	}

	virtual ~FDetailWidgetRow() {}

	virtual FName GetRowName() const override { return RowTagName; }

	/** Sets the whole-row content. */
	FDetailWidgetRow& operator[](TSharedRef<SWidget> InWidget)
	{
		WholeRowWidget.Widget = InWidget;
		return *this;
	}

	FDetailWidgetDecl& WholeRowContent() { return WholeRowWidget; }
	FDetailWidgetDecl& NameContent() { return NameWidget; }
	FDetailWidgetDecl& ValueContent() { return ValueWidget; }
	FDetailWidgetDecl& ExtensionContent() { return ExtensionWidget; }

	FDetailWidgetRow& FilterString(const FText& InFilterString)
	{
		FilterTextString = InFilterString;
		return *this;
	}

	FDetailWidgetRow& Visibility(const TAttribute<EVisibility>& InVisibility)
	{
		VisibilityAttr = InVisibility;
		return *this;
	}

	FDetailWidgetRow& IsEnabled(const TAttribute<bool>& InIsEnabled)
	{
		IsEnabledAttr = InIsEnabled;
		return *this;
	}

	FDetailWidgetRow& IsValueEnabled(const TAttribute<bool>& InIsEnabled)
	{
		IsValueEnabledAttr = InIsEnabled;
		return *this;
	}

	FDetailWidgetRow& RowTag(const FName& InRowTagName)
	{
		RowTagName = InRowTagName;
		return *this;
	}

	bool HasNameContent() const { return NameWidget.Widget != SNullWidget::NullWidget; }
	bool HasValueContent() const { return ValueWidget.Widget != SNullWidget::NullWidget; }
	bool HasExtensionContent() const { return ExtensionWidget.Widget != SNullWidget::NullWidget; }
	bool HasColumns() const { return HasNameContent() || HasValueContent(); }
	bool HasAnyContent() const { return WholeRowWidget.Widget != SNullWidget::NullWidget || HasColumns(); }

	FDetailWidgetDecl NameWidget;
	FDetailWidgetDecl ValueWidget;
	FDetailWidgetDecl ExtensionWidget;
	FDetailWidgetDecl WholeRowWidget;
	TAttribute<EVisibility> VisibilityAttr;
	TAttribute<bool> IsEnabledAttr;
	TAttribute<bool> IsValueEnabledAttr;
	FText FilterTextString;
	FName RowTagName;
};
