#include "DetailsViewDriver.h"

#include "Modules/ModuleManager.h"
#include "PropertyEditorModule.h"
#include "WidgetDriver.h"

namespace
{
	void AppendRows(const TArray<TSharedRef<FHeadlessDetailRow>>& Rows, TArray<TSharedRef<FHeadlessDetailRow>>& Out)
	{
		for (const TSharedRef<FHeadlessDetailRow>& Row : Rows)
		{
			Out.Add(Row);
			AppendRows(Row->Children, Out);
		}
	}
}

FDetailsViewDriver::FDetailsViewDriver(const FDetailsViewArgs& Args)
	: DetailsView(FModuleManager::LoadModuleChecked<FPropertyEditorModule>(TEXT("PropertyEditor")).CreateDetailView(Args))
{
}

FDetailsViewDriver::FDetailsViewDriver(const TArray<UObject*>& Objects, const FDetailsViewArgs& Args)
	: FDetailsViewDriver(Args)
{
	SetObjects(Objects);
}

void FDetailsViewDriver::SetCategoryExpanded(FName Category, bool bExpanded) const
{
	const TSharedPtr<FHeadlessDetailCategory> Found = FindCategory(Category);
	checkf(Found.IsValid(), TEXT("No category %s"), *Category.ToString());
	GetView().SetExpanded(*Found, bExpanded);
}

void FDetailsViewDriver::SetAdvancedShown(FName Category, bool bShown) const
{
	const TSharedPtr<FHeadlessDetailCategory> Found = FindCategory(Category);
	checkf(Found.IsValid(), TEXT("No category %s"), *Category.ToString());
	GetView().SetAdvancedShown(*Found, bShown);
}

void FDetailsViewDriver::SetRowExpanded(FHeadlessDetailRow& Row, bool bExpanded) const
{
	GetView().SetExpanded(Row, bExpanded);
}

void FDetailsViewDriver::ExpandAll() const
{
	for (const TSharedRef<FHeadlessDetailCategory>& Category : GetCategories())
	{
		GetView().SetExpanded(*Category, true);
		GetView().SetAdvancedShown(*Category, true);
	}
	for (const TSharedRef<FHeadlessDetailRow>& Row : GetAllRows())
	{
		if (Row->Children.Num() > 0)
		{
			GetView().SetExpanded(*Row, true);
		}
	}
}

TSharedPtr<FHeadlessDetailCategory> FDetailsViewDriver::FindCategory(FName Name) const
{
	for (const TSharedRef<FHeadlessDetailCategory>& Category : GetCategories())
	{
		if (Category->Name == Name)
		{
			return Category;
		}
	}
	return nullptr;
}

TArray<TSharedRef<FHeadlessDetailRow>> FDetailsViewDriver::GetAllRows() const
{
	TArray<TSharedRef<FHeadlessDetailRow>> Rows;
	for (const TSharedRef<FHeadlessDetailCategory>& Category : GetCategories())
	{
		AppendRows(Category->Rows, Rows);
	}
	return Rows;
}

TSharedPtr<FHeadlessDetailRow> FDetailsViewDriver::FindPropertyRow(FName PropertyName) const
{
	for (const TSharedRef<FHeadlessDetailRow>& Row : GetAllRows())
	{
		if (Row->Kind == FHeadlessDetailRow::EKind::Property && Row->Name == PropertyName)
		{
			return Row;
		}
	}
	return nullptr;
}

TSharedPtr<FHeadlessDetailRow> FDetailsViewDriver::FindCustomRow(const FString& FilterText) const
{
	for (const TSharedRef<FHeadlessDetailRow>& Row : GetAllRows())
	{
		if (Row->Kind == FHeadlessDetailRow::EKind::Custom && Row->Widgets.FilterTextString.ToString().Equals(FilterText))
		{
			return Row;
		}
	}
	return nullptr;
}

FString FDetailsViewDriver::GetRowLabel(const FHeadlessDetailRow& Row)
{
	if (Row.Kind == FHeadlessDetailRow::EKind::Group && !Row.DisplayName.IsEmpty())
	{
		return Row.DisplayName.ToString();
	}
	const TSharedRef<SWidget> NameWidget = Row.Widgets.HasNameContent() ? Row.Widgets.NameWidget.Widget : Row.Widgets.WholeRowWidget.Widget;
	const TOptional<FString> Text = FWidgetDriver::GetDisplayedText(NameWidget);
	if (Text.IsSet())
	{
		return Text.GetValue();
	}
	return Row.Widgets.FilterTextString.ToString();
}

TArray<FString> FDetailsViewDriver::GetRowLabels(const TArray<TSharedRef<FHeadlessDetailRow>>& Rows)
{
	TArray<FString> Labels;
	for (const TSharedRef<FHeadlessDetailRow>& Row : Rows)
	{
		Labels.Add(GetRowLabel(*Row));
	}
	return Labels;
}

TSharedPtr<SWidget> FDetailsViewDriver::FindValueWidget(const FHeadlessDetailRow& Row, const FString& TypeName)
{
	const TSharedRef<SWidget> Root = Row.Widgets.HasValueContent() ? Row.Widgets.ValueWidget.Widget : Row.Widgets.WholeRowWidget.Widget;
	return FWidgetDriver::FindWidget(Root, TypeName);
}
