#pragma once

#include "CoreMinimal.h"
#include "HeadlessDetailsView.h"

using UE::Headless::FHeadlessDetailCategory;
using UE::Headless::FHeadlessDetailRow;
using UE::Headless::FHeadlessDetailsView;

/**
 * Shows objects in a details view through the registered customisations, as the editor's details
 * panel does when they are selected, and finds the categories, rows and widgets it built.
 */
class HEADLESSTESTING_API FDetailsViewDriver
{
public:
	FDetailsViewDriver();
	explicit FDetailsViewDriver(const TArray<UObject*>& Objects);

	void SetObjects(const TArray<UObject*>& Objects) { View->SetObjects(Objects); }
	void Rebuild() { View->Rebuild(); }
	FHeadlessDetailsView& GetView() const { return *View; }
	/** Lets the view go, with its rows and customisation instances, as closing the panel does. */
	void Close() { View.Reset(); }

	const TArray<TSharedRef<FHeadlessDetailCategory>>& GetCategories() const { return View->GetCategories(); }
	TSharedPtr<FHeadlessDetailCategory> FindCategory(FName Name) const;
	/** Every row in display order, depth first (a row, then its children). */
	TArray<TSharedRef<FHeadlessDetailRow>> GetAllRows() const;
	/** The first property row showing the named property. */
	TSharedPtr<FHeadlessDetailRow> FindPropertyRow(FName PropertyName) const;
	/** The first custom row whose filter text is FilterText. */
	TSharedPtr<FHeadlessDetailRow> FindCustomRow(const FString& FilterText) const;

	/** What the row's name column shows (a group's display name; a nameless custom row's filter text). */
	static FString GetRowLabel(const FHeadlessDetailRow& Row);
	static TArray<FString> GetRowLabels(const TArray<TSharedRef<FHeadlessDetailRow>>& Rows);
	/** The widget of a type in the row's value column (or whole row), or null. */
	static TSharedPtr<SWidget> FindValueWidget(const FHeadlessDetailRow& Row, const FString& TypeName);

	template <typename WidgetType>
	static TSharedPtr<WidgetType> FindValueWidget(const FHeadlessDetailRow& Row, const FString& TypeName)
	{
		const TSharedPtr<SWidget> Found = FindValueWidget(Row, TypeName);
		return Found.IsValid() ? StaticCastSharedRef<WidgetType>(Found.ToSharedRef()).ToSharedPtr() : TSharedPtr<WidgetType>();
	}

private:
	TSharedPtr<FHeadlessDetailsView> View;
};
