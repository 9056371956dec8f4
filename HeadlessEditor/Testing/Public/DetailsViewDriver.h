#pragma once

#include "CoreMinimal.h"
#include "HeadlessDetailsView.h"
#include "IDetailsView.h"

using UE::Headless::FHeadlessDetailCategory;
using UE::Headless::FHeadlessDetailRow;
using UE::Headless::FHeadlessDetailsView;

/**
 * Shows objects in a details view made by the property editor module, as the editor's details panel
 * shows them when they are selected, and finds the categories, rows and widgets it built. It opens
 * what a user would open with a click on an arrow.
 */
class HEADLESSTESTING_API FDetailsViewDriver
{
public:
	explicit FDetailsViewDriver(const FDetailsViewArgs& Args = FDetailsViewArgs());
	explicit FDetailsViewDriver(const TArray<UObject*>& Objects, const FDetailsViewArgs& Args = FDetailsViewArgs());

	/** Shows the objects, laying the view out again even when they are the ones shown. */
	void SetObjects(const TArray<UObject*>& Objects) { DetailsView->SetObjects(Objects, true); }
	void Rebuild() { DetailsView->ForceRefresh(); }
	/** The details view widget, to draw or to put in a window. */
	TSharedRef<IDetailsView> GetDetailsView() const { return DetailsView.ToSharedRef(); }
	/** The layout the view built and draws. */
	FHeadlessDetailsView& GetView() const { return UE::Headless::GetDetailsViewModel(*DetailsView); }
	/** Lets the view go, with its rows and customisation instances, as closing the panel does. */
	void Close() { DetailsView.Reset(); }

	/** Opens or closes a category. */
	void SetCategoryExpanded(FName Category, bool bExpanded = true) const;
	/** Shows or hides a category's advanced rows. */
	void SetAdvancedShown(FName Category, bool bShown = true) const;
	/** Opens or closes a group or a row with rows under it. */
	void SetRowExpanded(FHeadlessDetailRow& Row, bool bExpanded = true) const;
	/** Opens every category, group and row, and shows every advanced section: the whole layout in view. */
	void ExpandAll() const;

	const TArray<TSharedRef<FHeadlessDetailCategory>>& GetCategories() const { return GetView().GetCategories(); }
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
		return Found.IsValid() ? TSharedPtr<WidgetType>(StaticCastSharedRef<WidgetType>(Found.ToSharedRef())) : TSharedPtr<WidgetType>();
	}

private:
	TSharedPtr<IDetailsView> DetailsView;
};
