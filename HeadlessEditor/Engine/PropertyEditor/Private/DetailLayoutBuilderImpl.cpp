#include "DetailLayoutBuilderImpl.h"

#include "DetailPropertyNode.h"
#include "IDetailCustomization.h"
#include "Modules/ModuleManager.h"
#include "PropertyEditorModule.h"
#include "PropertyHandleImpl.h"
#include "PropertyValueWidgets.h"
#include "UObject/Class.h"

namespace
{
	TSharedRef<FHeadlessDetailRow> MakeRow(FHeadlessDetailRow::EKind Kind, FName Name, bool bAdvanced)
	{
		TSharedRef<FHeadlessDetailRow> Row = MakeShared<FHeadlessDetailRow>();
		Row->Kind = Kind;
		Row->Name = Name;
		Row->bAdvanced = bAdvanced;
		return Row;
	}

	/** Puts a property's default value widget in the row's value column, with the widths that widget asks for. */
	void SetDefaultValueContent(FDetailWidgetRow& Row, const TSharedRef<IPropertyHandle>& Handle)
	{
		const PropertyValueWidgets::FValueWidget Value = PropertyValueWidgets::Make(Handle);
		Row.ValueContent().MinDesiredWidth(Value.MinDesiredWidth).MaxDesiredWidth(Value.MaxDesiredWidth)[Value.Widget];
	}

	/** The category a member is listed under: its Category metadata's first level, or its owner's name. */
	FName GetDefaultCategoryName(const FProperty* Property)
	{
		const FString& Category = Property->GetMetaData(TEXT("Category"));
		if (Category.IsEmpty())
		{
			return Property->GetOwnerStruct() ? Property->GetOwnerStruct()->GetFName() : FName(TEXT("Default"));
		}
		FString TopLevel = Category;
		int32 Separator = INDEX_NONE;
		if (Category.FindChar(TEXT('|'), Separator))
		{
			TopLevel = Category.Left(Separator);
		}
		return FName(*TopLevel);
	}
}

IDetailPropertyRow& FDetailPropertyRowImpl::DisplayName(const FText& InDisplayName)
{
	Row->DisplayName = InDisplayName;
	if (Row->PropertyHandle.IsValid() && !Row->bCustomisedByType)
	{
		Row->Widgets.NameContent()[Row->PropertyHandle->CreatePropertyNameWidget(InDisplayName)];
	}
	return *this;
}

IDetailPropertyRow& FDetailPropertyRowImpl::ToolTip(const FText& InToolTip)
{
	if (Row->PropertyHandle.IsValid() && !Row->bCustomisedByType)
	{
		Row->Widgets.NameContent()[Row->PropertyHandle->CreatePropertyNameWidget(Row->DisplayName, InToolTip)];
	}
	return *this;
}

IDetailPropertyRow& FDetailPropertyRowImpl::IsEnabled(TAttribute<bool> InIsEnabled)
{
	Row->Widgets.IsEnabledAttr = InIsEnabled;
	return *this;
}

IDetailPropertyRow& FDetailPropertyRowImpl::ShouldAutoExpand(bool bForceExpansion)
{
	Row->bExpanded = bForceExpansion;
	return *this;
}

IDetailPropertyRow& FDetailPropertyRowImpl::Visibility(TAttribute<EVisibility> InVisibility)
{
	Row->Widgets.VisibilityAttr = InVisibility;
	return *this;
}

void FDetailPropertyRowImpl::GetDefaultWidgets(TSharedPtr<SWidget>& OutNameWidget, TSharedPtr<SWidget>& OutValueWidget, bool bAddWidgetDecoration)
{
	FDetailWidgetRow Unused;
	GetDefaultWidgets(OutNameWidget, OutValueWidget, Unused, bAddWidgetDecoration);
}

void FDetailPropertyRowImpl::GetDefaultWidgets(TSharedPtr<SWidget>& OutNameWidget, TSharedPtr<SWidget>& OutValueWidget, FDetailWidgetRow& OutRow, bool bAddWidgetDecoration)
{
	if (!Row->PropertyHandle.IsValid())
	{
		return;
	}
	OutNameWidget = Row->PropertyHandle->CreatePropertyNameWidget(Row->DisplayName);
	OutRow.NameContent()[OutNameWidget.ToSharedRef()];
	SetDefaultValueContent(OutRow, Row->PropertyHandle.ToSharedRef());
	OutValueWidget = OutRow.ValueContent().Widget;
}

FDetailWidgetRow& FDetailPropertyRowImpl::CustomWidget(bool bShowChildren)
{
	const TAttribute<EVisibility> Visibility = Row->Widgets.VisibilityAttr;
	const TAttribute<bool> Enabled = Row->Widgets.IsEnabledAttr;
	Row->Widgets = FDetailWidgetRow();
	Row->Widgets.VisibilityAttr = Visibility;
	Row->Widgets.IsEnabledAttr = Enabled;
	if (!bShowChildren)
	{
		Row->Children.Empty();
	}
	return Row->Widgets;
}

IDetailPropertyRow& FDetailGroupImpl::HeaderProperty(TSharedRef<IPropertyHandle> PropertyHandle)
{
	Row->PropertyHandle = PropertyHandle;
	Row->Widgets.NameContent()[PropertyHandle->CreatePropertyNameWidget()];
	SetDefaultValueContent(Row->Widgets, PropertyHandle);
	return Layout.MakePropertyRow(Row);
}

FDetailWidgetRow& FDetailGroupImpl::AddWidgetRow()
{
	const TSharedRef<FHeadlessDetailRow> Child = MakeRow(FHeadlessDetailRow::EKind::Custom, NAME_None, Row->bAdvanced);
	Row->Children.Add(Child);
	return Child->Widgets;
}

IDetailPropertyRow& FDetailGroupImpl::AddPropertyRow(TSharedRef<IPropertyHandle> PropertyHandle)
{
	const TSharedPtr<FDetailPropertyNode> Node = FDetailLayoutBuilderImpl::NodeOf(PropertyHandle);
	check(Node.IsValid());
	Node->bCustomized = true;
	const TSharedRef<FHeadlessDetailRow> Child = Layout.GenerateRow(Node.ToSharedRef(), Category, Row->bAdvanced);
	Row->Children.Add(Child);
	return Layout.MakePropertyRow(Child);
}

IDetailGroup& FDetailGroupImpl::AddGroup(FName NewGroupName, const FText& InLocalizedDisplayName, bool bInStartExpanded)
{
	const TSharedRef<FHeadlessDetailRow> Child = MakeRow(FHeadlessDetailRow::EKind::Group, NewGroupName, Row->bAdvanced);
	Child->DisplayName = InLocalizedDisplayName;
	Child->bExpanded = bInStartExpanded;
	Row->Children.Add(Child);
	return Layout.MakeGroup(Category, Child);
}

IDetailGroup& FDetailChildrenBuilderImpl::AddGroup(FName GroupName, const FText& LocalizedDisplayName)
{
	const TSharedRef<FHeadlessDetailRow> Child = MakeRow(FHeadlessDetailRow::EKind::Group, GroupName, ParentRow.bAdvanced);
	Child->DisplayName = LocalizedDisplayName;
	ParentRow.Children.Add(Child);
	return Layout.MakeGroup(Category, Child);
}

FDetailWidgetRow& FDetailChildrenBuilderImpl::AddCustomRow(const FText& SearchString)
{
	const TSharedRef<FHeadlessDetailRow> Child = MakeRow(FHeadlessDetailRow::EKind::Custom, NAME_None, ParentRow.bAdvanced);
	Child->Widgets.FilterString(SearchString);
	ParentRow.Children.Add(Child);
	return Child->Widgets;
}

IDetailPropertyRow& FDetailChildrenBuilderImpl::AddProperty(TSharedRef<IPropertyHandle> PropertyHandle)
{
	const TSharedPtr<FDetailPropertyNode> Node = FDetailLayoutBuilderImpl::NodeOf(PropertyHandle);
	check(Node.IsValid());
	Node->bCustomized = true;
	const TSharedRef<FHeadlessDetailRow> Child = Layout.GenerateRow(Node.ToSharedRef(), Category, ParentRow.bAdvanced);
	ParentRow.Children.Add(Child);
	return Layout.MakePropertyRow(Child);
}

TSharedRef<SWidget> FDetailChildrenBuilderImpl::GenerateStructValueWidget(TSharedRef<IPropertyHandle> StructPropertyHandle)
{
	return PropertyValueWidgets::Make(StructPropertyHandle).Widget;
}

IDetailCategoryBuilder& FDetailChildrenBuilderImpl::GetParentCategory() const
{
	return Category;
}

FDetailCategoryImpl::FDetailCategoryImpl(FDetailLayoutBuilderImpl& InLayout, FName InName, int32 InSortOrder)
	: Data(MakeShared<FHeadlessDetailCategory>())
	, Layout(InLayout)
{
	Data->Name = InName;
	Data->DisplayName = FText::AsCultureInvariant(FName::NameToDisplayString(InName.ToString(), false));
	Data->SortOrder = InSortOrder;
}

IDetailCategoryBuilder& FDetailCategoryImpl::InitiallyCollapsed(bool bShouldBeInitiallyCollapsed)
{
	Data->bInitiallyCollapsed = bShouldBeInitiallyCollapsed;
	return *this;
}

IDetailPropertyRow& FDetailCategoryImpl::AddProperty(FName PropertyPath, UClass* ClassOutermost, FName InstanceName, EPropertyLocation::Type Location)
{
	return AddProperty(TSharedPtr<IPropertyHandle>(Layout.GetProperty(PropertyPath, ClassOutermost, InstanceName)), Location);
}

IDetailPropertyRow& FDetailCategoryImpl::AddProperty(TSharedPtr<IPropertyHandle> PropertyHandle, EPropertyLocation::Type Location)
{
	const TSharedPtr<FDetailPropertyNode> Node = FDetailLayoutBuilderImpl::NodeOf(PropertyHandle);
	const bool bAdvanced = Location == EPropertyLocation::Advanced || (Location == EPropertyLocation::Default && Node.IsValid() && Node->GetProperty() && Node->GetProperty()->HasAnyPropertyFlags(CPF_AdvancedDisplay));
	TSharedRef<FHeadlessDetailRow> Row = MakeRow(FHeadlessDetailRow::EKind::Property, NAME_None, bAdvanced);
	if (Node.IsValid() && Node->GetProperty())
	{
		Node->bCustomized = true;
		Row = Layout.GenerateRow(Node.ToSharedRef(), *this, bAdvanced);
	}
	else
	{
		// The engine shows nothing for a property that does not exist; the row stays empty.
		Row->PropertyHandle = PropertyHandle;
	}
	Entries.Add({nullptr, Row, bAdvanced});
	return Layout.MakePropertyRow(Row);
}

FDetailWidgetRow& FDetailCategoryImpl::AddCustomRow(const FText& FilterString, bool bForAdvanced)
{
	const TSharedRef<FHeadlessDetailRow> Row = MakeRow(FHeadlessDetailRow::EKind::Custom, NAME_None, bForAdvanced);
	Row->Widgets.FilterString(FilterString);
	Entries.Add({nullptr, Row, bForAdvanced});
	return Row->Widgets;
}

IDetailGroup& FDetailCategoryImpl::AddGroup(FName GroupName, const FText& LocalizedDisplayName, bool bForAdvanced, bool bStartExpanded)
{
	const TSharedRef<FHeadlessDetailRow> Row = MakeRow(FHeadlessDetailRow::EKind::Group, GroupName, bForAdvanced);
	Row->DisplayName = LocalizedDisplayName;
	Row->bExpanded = bStartExpanded;
	Entries.Add({nullptr, Row, bForAdvanced});
	return Layout.MakeGroup(*this, Row);
}

void FDetailCategoryImpl::GetDefaultProperties(TArray<TSharedRef<IPropertyHandle>>& OutAllProperties, bool bSimpleProperties, bool bAdvancedProperties)
{
	for (const FEntry& Entry : Entries)
	{
		if (Entry.DefaultNode.IsValid() && (Entry.bAdvanced ? bAdvancedProperties : bSimpleProperties))
		{
			OutAllProperties.Add(MakeShared<FPropertyHandleImpl>(Entry.DefaultNode));
		}
	}
}

IDetailLayoutBuilder& FDetailCategoryImpl::GetParentLayout() const
{
	return Layout;
}

void FDetailCategoryImpl::AddDefaultProperty(const TSharedRef<FDetailPropertyNode>& Node, bool bAdvanced)
{
	Entries.Add({Node, nullptr, bAdvanced});
}

void FDetailCategoryImpl::Finish()
{
	TArray<TSharedRef<FHeadlessDetailRow>> Simple;
	TArray<TSharedRef<FHeadlessDetailRow>> Advanced;
	for (const FEntry& Entry : Entries)
	{
		TSharedPtr<FHeadlessDetailRow> Row = Entry.Row;
		if (Entry.DefaultNode.IsValid())
		{
			// A default row gives way to the same property hidden or placed by a customisation.
			if (Entry.DefaultNode->bHiddenByCustomization || Entry.DefaultNode->bCustomized)
			{
				continue;
			}
			Row = Layout.GenerateRow(Entry.DefaultNode.ToSharedRef(), *this, Entry.bAdvanced);
		}
		(Entry.bAdvanced ? Advanced : Simple).Add(Row.ToSharedRef());
	}
	Data->Rows = MoveTemp(Simple);
	Data->Rows.Append(Advanced);
	Data->bExpanded = !Data->bInitiallyCollapsed && !Data->HasOnlyAdvancedRows();
}

FDetailLayoutBuilderImpl::FDetailLayoutBuilderImpl(FHeadlessDetailsView& InView, const TSharedRef<FDetailPropertyNode>& InRoot)
	: View(InView)
	, Root(InRoot)
{
}

FDetailLayoutBuilderImpl::~FDetailLayoutBuilderImpl()
{
	for (const TSharedRef<IDetailCustomization>& Customization : ClassCustomizations)
	{
		Customization->PendingDelete();
	}
}

TArray<TSharedRef<FHeadlessDetailCategory>> FDetailLayoutBuilderImpl::Build()
{
	Utils = MakeShared<FCustomizationUtilsImpl>(GetPropertyUtilities());
	BaseClass = FHeadlessDetailsView::FindCommonBaseClass(Root->GetObjects());

	for (const TSharedRef<FDetailPropertyNode>& Member : Root->GetChildren())
	{
		FindOrAddCategory(GetDefaultCategoryName(Member->GetProperty())).AddDefaultProperty(Member, Member->GetProperty()->HasAnyPropertyFlags(CPF_AdvancedDisplay));
	}

	// Layouts registered for the class or any of its bases apply, in registration order.
	if (const FPropertyEditorModule* Module = FModuleManager::GetModulePtr<FPropertyEditorModule>(TEXT("PropertyEditor")))
	{
		TArray<const FDetailLayoutCallback*> Callbacks;
		for (const UClass* Class = BaseClass; Class; Class = Class->GetSuperClass())
		{
			if (const FDetailLayoutCallback* Callback = Module->GetClassNameToDetailLayoutNameMap().Find(Class->GetFName()))
			{
				Callbacks.Add(Callback);
			}
		}
		Callbacks.Sort([](const FDetailLayoutCallback& A, const FDetailLayoutCallback& B)
			{ return A.Order < B.Order; });
		for (const FDetailLayoutCallback* Callback : Callbacks)
		{
			if (Callback->DetailLayoutDelegate.IsBound())
			{
				ClassCustomizations.Add(Callback->DetailLayoutDelegate.Execute());
			}
		}
	}
	const TSharedPtr<IDetailLayoutBuilder> Self = AsShared();
	for (int32 Index = 0; Index < ClassCustomizations.Num(); ++Index)
	{
		const TSharedRef<IDetailCustomization> Customization = ClassCustomizations[Index];
		Customization->CustomizeDetails(Self);
	}

	TArray<TSharedRef<FHeadlessDetailCategory>> Result;
	for (const TSharedRef<FDetailCategoryImpl>& Category : Categories)
	{
		Category->Finish();
		Result.Add(Category->Data);
	}
	Result.StableSort([](const TSharedRef<FHeadlessDetailCategory>& A, const TSharedRef<FHeadlessDetailCategory>& B)
		{ return A->Priority != B->Priority ? A->Priority < B->Priority : A->SortOrder < B->SortOrder; });
	return Result;
}

void FDetailLayoutBuilderImpl::GetObjectsBeingCustomized(TArray<TWeakObjectPtr<UObject>>& OutObjects) const
{
	OutObjects = View.GetSelectedObjects();
}

TSharedRef<IPropertyUtilities> FDetailLayoutBuilderImpl::GetPropertyUtilities() const
{
	return View.AsShared();
}

FDetailCategoryImpl& FDetailLayoutBuilderImpl::FindOrAddCategory(FName CategoryName)
{
	for (const TSharedRef<FDetailCategoryImpl>& Category : Categories)
	{
		if (Category->Data->Name == CategoryName)
		{
			return *Category;
		}
	}
	Categories.Add(MakeShared<FDetailCategoryImpl>(*this, CategoryName, Categories.Num()));
	return *Categories.Last();
}

IDetailCategoryBuilder& FDetailLayoutBuilderImpl::EditCategory(FName CategoryName, const FText& NewLocalizedDisplayName, ECategoryPriority::Type CategoryType)
{
	FDetailCategoryImpl& Category = FindOrAddCategory(CategoryName);
	if (!NewLocalizedDisplayName.IsEmpty())
	{
		Category.Data->DisplayName = NewLocalizedDisplayName;
	}
	Category.Data->Priority = CategoryType;
	return Category;
}

void FDetailLayoutBuilderImpl::GetCategoryNames(TArray<FName>& OutCategoryNames) const
{
	for (const TSharedRef<FDetailCategoryImpl>& Category : Categories)
	{
		OutCategoryNames.Add(Category->Data->Name);
	}
}

TSharedRef<IPropertyHandle> FDetailLayoutBuilderImpl::GetProperty(const FName PropertyPath, const UStruct* ClassOutermost, FName InstanceName) const
{
	TArray<FString> Segments;
	PropertyPath.ToString().ParseIntoArray(Segments, TEXT("."));
	TSharedPtr<FDetailPropertyNode> Node = Segments.Num() > 0 ? TSharedPtr<FDetailPropertyNode>(Root) : nullptr;
	for (const FString& Segment : Segments)
	{
		Node = Node.IsValid() ? Node->FindChild(FName(*Segment), false) : nullptr;
	}
	// A missing property still gives a handle, one that is not valid.
	return MakeShared<FPropertyHandleImpl>(Node);
}

void FDetailLayoutBuilderImpl::HideProperty(const TSharedPtr<IPropertyHandle> PropertyHandle)
{
	if (PropertyHandle.IsValid())
	{
		PropertyHandle->MarkHiddenByCustomization();
	}
}

void FDetailLayoutBuilderImpl::HideProperty(FName PropertyPath, const UStruct* ClassOutermost, FName InstanceName)
{
	HideProperty(TSharedPtr<IPropertyHandle>(GetProperty(PropertyPath, ClassOutermost, InstanceName)));
}

void FDetailLayoutBuilderImpl::HideCategory(FName CategoryName)
{
	FindOrAddCategory(CategoryName).Data->bHidden = true;
}

TSharedPtr<FDetailPropertyNode> FDetailLayoutBuilderImpl::NodeOf(const TSharedPtr<IPropertyHandle>& Handle)
{
	// Every handle of this details view is a FPropertyHandleImpl.
	return Handle.IsValid() ? StaticCastSharedPtr<FPropertyHandleImpl>(Handle)->GetNode() : nullptr;
}

TSharedPtr<IPropertyTypeCustomization> FDetailLayoutBuilderImpl::MakeTypeCustomization(const TSharedRef<FDetailPropertyNode>& Node, const TSharedRef<IPropertyHandle>& Handle) const
{
	const FStructProperty* StructProperty = CastField<FStructProperty>(Node->GetProperty());
	FPropertyEditorModule* Module = FModuleManager::GetModulePtr<FPropertyEditorModule>(TEXT("PropertyEditor"));
	if (!StructProperty || !StructProperty->Struct || !Module)
	{
		return nullptr;
	}
	// This view has no layouts of its own, only the ones registered with the module.
	const FPropertyTypeLayoutCallback Callback = Module->FindPropertyTypeLayoutCallback(StructProperty->Struct->GetFName(), *Handle, FCustomPropertyTypeLayoutMap());
	return Callback.IsValid() ? TSharedPtr<IPropertyTypeCustomization>(Callback.GetCustomizationInstance()) : nullptr;
}

TSharedRef<FHeadlessDetailRow> FDetailLayoutBuilderImpl::GenerateRow(const TSharedRef<FDetailPropertyNode>& Node, FDetailCategoryImpl& Category, bool bAdvanced)
{
	const FName RowName = Node->GetArrayIndex() != INDEX_NONE ? FName(*FString::FromInt(Node->GetArrayIndex())) : Node->GetProperty()->GetFName();
	const TSharedRef<FHeadlessDetailRow> Row = MakeRow(FHeadlessDetailRow::EKind::Property, RowName, bAdvanced);
	const TSharedRef<IPropertyHandle> Handle = MakeShared<FPropertyHandleImpl>(TSharedPtr<FDetailPropertyNode>(Node));
	Row->PropertyHandle = Handle;

	if (const TSharedPtr<IPropertyTypeCustomization> Customization = MakeTypeCustomization(Node, Handle))
	{
		TypeCustomizations.Add(Customization.ToSharedRef());
		Row->bCustomisedByType = true;
		Customization->CustomizeHeader(Handle, Row->Widgets, *Utils);
		FDetailChildrenBuilderImpl ChildBuilder(*this, Category, *Row);
		Customization->CustomizeChildren(Handle, ChildBuilder, *Utils);
		return Row;
	}

	Row->Widgets.NameContent()[Handle->CreatePropertyNameWidget()];
	SetDefaultValueContent(Row->Widgets, Handle);
	// A property shown but not editable is greyed out.
	if (Node->GetProperty()->HasAnyPropertyFlags(CPF_EditConst))
	{
		Row->Widgets.IsEnabled(false);
	}
	for (const TSharedRef<FDetailPropertyNode>& Child : Node->GetChildren())
	{
		if (!Child->bHiddenByCustomization)
		{
			Row->Children.Add(GenerateRow(Child, Category, bAdvanced));
		}
	}
	return Row;
}

IDetailPropertyRow& FDetailLayoutBuilderImpl::MakePropertyRow(const TSharedRef<FHeadlessDetailRow>& Row)
{
	PropertyRows.Add(MakeShared<FDetailPropertyRowImpl>(Row));
	return *PropertyRows.Last();
}

IDetailGroup& FDetailLayoutBuilderImpl::MakeGroup(FDetailCategoryImpl& Category, const TSharedRef<FHeadlessDetailRow>& Row)
{
	Groups.Add(MakeShared<FDetailGroupImpl>(*this, Category, Row));
	return *Groups.Last();
}
