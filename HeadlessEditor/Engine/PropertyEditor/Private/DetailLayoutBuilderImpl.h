#pragma once

#include "CoreMinimal.h"
#include "DetailCategoryBuilder.h"
#include "DetailLayoutBuilder.h"
#include "DetailWidgetRow.h"
#include "HeadlessDetailsView.h"
#include "IDetailChildrenBuilder.h"
#include "IDetailGroup.h"
#include "IDetailPropertyRow.h"
#include "IPropertyTypeCustomization.h"

using UE::Headless::FHeadlessDetailCategory;
using UE::Headless::FHeadlessDetailRow;
using UE::Headless::FHeadlessDetailsView;

class FDetailCategoryImpl;
class FDetailLayoutBuilderImpl;
class FDetailPropertyNode;
class IDetailCustomization;

/** A property row, adjustable by the customisation that added it. */
class FDetailPropertyRowImpl : public IDetailPropertyRow
{
public:
	explicit FDetailPropertyRowImpl(const TSharedRef<FHeadlessDetailRow>& InRow)
		: Row(InRow)
	{
	}

	virtual TSharedPtr<IPropertyHandle> GetPropertyHandle() const override { return Row->PropertyHandle; }
	virtual IDetailPropertyRow& DisplayName(const FText& InDisplayName) override;
	virtual IDetailPropertyRow& ToolTip(const FText& InToolTip) override;
	virtual IDetailPropertyRow& ShowPropertyButtons(bool bShowPropertyButtons) override { return *this; }
	virtual IDetailPropertyRow& IsEnabled(TAttribute<bool> InIsEnabled) override;
	virtual IDetailPropertyRow& ShouldAutoExpand(bool bForceExpansion = true) override;
	virtual IDetailPropertyRow& Visibility(TAttribute<EVisibility> Visibility) override;
	virtual void GetDefaultWidgets(TSharedPtr<SWidget>& OutNameWidget, TSharedPtr<SWidget>& OutValueWidget, bool bAddWidgetDecoration = false) override;
	virtual void GetDefaultWidgets(TSharedPtr<SWidget>& OutNameWidget, TSharedPtr<SWidget>& OutValueWidget, FDetailWidgetRow& OutRow, bool bAddWidgetDecoration = false) override;
	virtual FDetailWidgetRow& CustomWidget(bool bShowChildren = false) override;
	virtual FDetailWidgetDecl* CustomNameWidget() override { return &Row->Widgets.NameWidget; }
	virtual FDetailWidgetDecl* CustomValueWidget() override { return &Row->Widgets.ValueWidget; }

private:
	TSharedRef<FHeadlessDetailRow> Row;
};

/** A group row: a header and the rows inside it. */
class FDetailGroupImpl : public IDetailGroup
{
public:
	FDetailGroupImpl(FDetailLayoutBuilderImpl& InLayout, FDetailCategoryImpl& InCategory, const TSharedRef<FHeadlessDetailRow>& InRow)
		: Layout(InLayout)
		, Category(InCategory)
		, Row(InRow)
	{
	}

	virtual FDetailWidgetRow& HeaderRow() override { return Row->Widgets; }
	virtual IDetailPropertyRow& HeaderProperty(TSharedRef<IPropertyHandle> PropertyHandle) override;
	virtual FDetailWidgetRow& AddWidgetRow() override;
	virtual IDetailPropertyRow& AddPropertyRow(TSharedRef<IPropertyHandle> PropertyHandle) override;
	virtual IDetailGroup& AddGroup(FName NewGroupName, const FText& InLocalizedDisplayName, bool bInStartExpanded = false) override;
	virtual void ToggleExpansion(bool bExpand) override { Row->bExpanded = bExpand; }
	virtual bool GetExpansionState() const override { return Row->bExpanded; }
	virtual FName GetGroupName() const override { return Row->Name; }

private:
	FDetailLayoutBuilderImpl& Layout;
	FDetailCategoryImpl& Category;
	TSharedRef<FHeadlessDetailRow> Row;
};

/** The child rows of a struct that a property-type customisation builds. */
class FDetailChildrenBuilderImpl : public IDetailChildrenBuilder
{
public:
	FDetailChildrenBuilderImpl(FDetailLayoutBuilderImpl& InLayout, FDetailCategoryImpl& InCategory, FHeadlessDetailRow& InParentRow)
		: Layout(InLayout)
		, Category(InCategory)
		, ParentRow(InParentRow)
	{
	}

	virtual IDetailGroup& AddGroup(FName GroupName, const FText& LocalizedDisplayName) override;
	virtual FDetailWidgetRow& AddCustomRow(const FText& SearchString) override;
	virtual IDetailPropertyRow& AddProperty(TSharedRef<IPropertyHandle> PropertyHandle) override;
	virtual TSharedRef<SWidget> GenerateStructValueWidget(TSharedRef<IPropertyHandle> StructPropertyHandle) override;
	virtual IDetailCategoryBuilder& GetParentCategory() const override;
	virtual IDetailGroup* GetParentGroup() const override { return nullptr; }

private:
	FDetailLayoutBuilderImpl& Layout;
	FDetailCategoryImpl& Category;
	FHeadlessDetailRow& ParentRow;
};

/** One category while the layout is built: default properties first, then what customisations add. */
class FDetailCategoryImpl : public IDetailCategoryBuilder
{
public:
	FDetailCategoryImpl(FDetailLayoutBuilderImpl& InLayout, FName InName, int32 InSortOrder);

	virtual IDetailCategoryBuilder& InitiallyCollapsed(bool bShouldBeInitiallyCollapsed) override;
	virtual IDetailCategoryBuilder& HeaderContent(TSharedRef<SWidget> InHeaderContent) override { return *this; }
	virtual int32 GetSortOrder() const override { return Data->SortOrder; }
	virtual void SetSortOrder(int32 InSortOrder) override { Data->SortOrder = InSortOrder; }
	virtual IDetailPropertyRow& AddProperty(FName PropertyPath, UClass* ClassOutermost = nullptr, FName InstanceName = NAME_None, EPropertyLocation::Type Location = EPropertyLocation::Default) override;
	virtual IDetailPropertyRow& AddProperty(TSharedPtr<IPropertyHandle> PropertyHandle, EPropertyLocation::Type Location = EPropertyLocation::Default) override;
	virtual FDetailWidgetRow& AddCustomRow(const FText& FilterString, bool bForAdvanced = false) override;
	virtual IDetailGroup& AddGroup(FName GroupName, const FText& LocalizedDisplayName, bool bForAdvanced = false, bool bStartExpanded = false) override;
	virtual void GetDefaultProperties(TArray<TSharedRef<IPropertyHandle>>& OutAllProperties, bool bSimpleProperties = true, bool bAdvancedProperties = true) override;
	virtual IDetailLayoutBuilder& GetParentLayout() const override;
	virtual const FText& GetDisplayName() const override { return Data->DisplayName; }
	virtual void SetCategoryVisibility(bool bVisible) override { Data->bHidden = !bVisible; }
	virtual void SetShowAdvanced(bool bShowAdvanced) override {}

	void AddDefaultProperty(const TSharedRef<FDetailPropertyNode>& Node, bool bAdvanced);
	/** Generates the default rows that survived the customisations and fills the category's rows. */
	void Finish();

	TSharedRef<FHeadlessDetailCategory> Data;

private:
	struct FEntry
	{
		TSharedPtr<FDetailPropertyNode> DefaultNode;
		TSharedPtr<FHeadlessDetailRow> Row;
		bool bAdvanced = false;
	};

	FDetailLayoutBuilderImpl& Layout;
	TArray<FEntry> Entries;
};

/** What a property-type customisation is handed while it builds. */
class FCustomizationUtilsImpl : public IPropertyTypeCustomizationUtils
{
public:
	explicit FCustomizationUtilsImpl(const TSharedRef<IPropertyUtilities>& InUtilities)
		: Utilities(InUtilities)
	{
	}

	virtual TSharedPtr<FAssetThumbnailPool> GetThumbnailPool() const override { return nullptr; }
	virtual TSharedPtr<IPropertyUtilities> GetPropertyUtilities() const override { return Utilities.Pin(); }

private:
	// Weak: the view owns the layout that owns this.
	TWeakPtr<IPropertyUtilities> Utilities;
};

/** Builds a details view's layout: default categories, class customisations, type customisations. */
class FDetailLayoutBuilderImpl : public IDetailLayoutBuilder, public TSharedFromThis<FDetailLayoutBuilderImpl>
{
public:
	FDetailLayoutBuilderImpl(FHeadlessDetailsView& InView, const TSharedRef<FDetailPropertyNode>& InRoot);
	virtual ~FDetailLayoutBuilderImpl() override;

	/** Runs the whole build and returns the categories in display order. */
	TArray<TSharedRef<FHeadlessDetailCategory>> Build();

	virtual void GetObjectsBeingCustomized(TArray<TWeakObjectPtr<UObject>>& OutObjects) const override;
	virtual const TArray<TWeakObjectPtr<UObject>>& GetSelectedObjects() const override { return View.GetSelectedObjects(); }
	virtual TSharedRef<IPropertyUtilities> GetPropertyUtilities() const override;
	virtual UClass* GetBaseClass() const override { return BaseClass; }
	virtual IDetailCategoryBuilder& EditCategory(FName CategoryName, const FText& NewLocalizedDisplayName = FText::GetEmpty(), ECategoryPriority::Type CategoryType = ECategoryPriority::Default) override;
	virtual void GetCategoryNames(TArray<FName>& OutCategoryNames) const override;
	virtual TSharedRef<IPropertyHandle> GetProperty(const FName PropertyPath, const UStruct* ClassOutermost = NULL, FName InstanceName = NAME_None) const override;
	virtual void HideProperty(const TSharedPtr<IPropertyHandle> PropertyHandle) override;
	virtual void HideProperty(FName PropertyPath, const UStruct* ClassOutermost = NULL, FName InstanceName = NAME_None) override;
	virtual void HideCategory(FName CategoryName) override;
	virtual void ForceRefreshDetails() override { View.RequestRefresh(); }

	/** A property row for a node: through its type's customisation if one is registered, by default otherwise. */
	TSharedRef<FHeadlessDetailRow> GenerateRow(const TSharedRef<FDetailPropertyNode>& Node, FDetailCategoryImpl& Category, bool bAdvanced);
	IDetailPropertyRow& MakePropertyRow(const TSharedRef<FHeadlessDetailRow>& Row);
	IDetailGroup& MakeGroup(FDetailCategoryImpl& Category, const TSharedRef<FHeadlessDetailRow>& Row);
	static TSharedPtr<FDetailPropertyNode> NodeOf(const TSharedPtr<IPropertyHandle>& Handle);

private:
	FDetailCategoryImpl& FindOrAddCategory(FName CategoryName);
	TSharedPtr<IPropertyTypeCustomization> MakeTypeCustomization(const TSharedRef<FDetailPropertyNode>& Node, const TSharedRef<IPropertyHandle>& Handle) const;

	FHeadlessDetailsView& View;
	TSharedRef<FDetailPropertyNode> Root;
	UClass* BaseClass = nullptr;
	TArray<TSharedRef<FDetailCategoryImpl>> Categories;
	TArray<TSharedRef<IDetailCustomization>> ClassCustomizations;
	TArray<TSharedRef<IPropertyTypeCustomization>> TypeCustomizations;
	TArray<TSharedRef<FDetailPropertyRowImpl>> PropertyRows;
	TArray<TSharedRef<FDetailGroupImpl>> Groups;
	TSharedPtr<FCustomizationUtilsImpl> Utils;
};
