#pragma once

#include "CoreMinimal.h"
#include "DetailColumnSizeData.h"
#include "DetailTreeNode.h"
#include "IDetailsView.h"
#include "Widgets/DeclarativeSyntaxSupport.h"

class ITableRow;
class SScrollBar;
class STableViewBase;

/**
 * The property editor's details panel. It builds the layout of the objects it shows through the
 * registered customisations (kept in an FHeadlessDetailsView), and draws it as a tree: category
 * header bars, their rows with the name and value columns split at shared widths, groups and
 * struct members indented under their rows, the "Advanced" expander before the advanced rows.
 */
class SDetailsView : public IDetailsView, public IDetailsViewPrivate
{
public:
	SLATE_BEGIN_ARGS(SDetailsView)
	{
	}
	SLATE_END_ARGS()

	virtual ~SDetailsView() override;

	void Construct(const FArguments& InArgs, const FDetailsViewArgs& InDetailsViewArgs);

	// IDetailsView
	virtual const TArray<TWeakObjectPtr<UObject>>& GetSelectedObjects() const override;
	virtual bool HasClassDefaultObject() const override;
	virtual void SetObjects(const TArray<UObject*>& InObjects, bool bForceRefresh = false, bool bOverrideLock = false) override;
	virtual void SetObjects(const TArray<TWeakObjectPtr<UObject>>& InObjects, bool bForceRefresh = false, bool bOverrideLock = false) override;
	virtual void SetObject(UObject* InObject, bool bForceRefresh = false) override;
	virtual FName GetIdentifier() const override { return DetailsViewArgs.ViewIdentifier; }
	virtual bool IsPropertyEditingEnabled() const override;
	virtual FOnFinishedChangingProperties& OnFinishedChangingProperties() const override;
	virtual void ShowAllAdvancedProperties() override;
	virtual void ForceRefresh() override;

	// IDetailsViewPrivate
	virtual FDetailColumnSizeData& GetColumnSizeData() override { return ColumnSizeData; }
	virtual bool IsScrollBarVisible() const override;
	virtual FHeadlessDetailsView& GetModel() const override { return *Model; }

	/** Runs what the layout deferred to the next frame: deferred actions and requested refreshes. */
	virtual void Tick(const FGeometry& AllottedGeometry, const double InCurrentTime, const float InDeltaTime) override;

private:
	/** Makes the tree again from the layout, and the list of the entries shown. */
	void OnLayoutChanged();
	TSharedRef<ITableRow> OnGenerateRowForDetailTree(TSharedRef<FDetailTreeNode> InTreeNode, const TSharedRef<STableViewBase>& OwnerTable);
	EVisibility GetScrollBarVisibility() const;
	/** Whether the objects differ from the ones shown. */
	bool ShouldSetNewObjects(const TArray<UObject*>& InObjects) const;

	FDetailsViewArgs DetailsViewArgs;
	FDetailColumnSizeData ColumnSizeData;
	TSharedPtr<FHeadlessDetailsView> Model;
	FDelegateHandle LayoutChangedHandle;
	/** The categories, with their entries under them. */
	TArray<TSharedRef<FDetailTreeNode>> RootTreeNodes;
	/** The entries whose parents are open, in display order: one row each. */
	TArray<TSharedRef<FDetailTreeNode>> ShownTreeNodes;
	TSharedPtr<SScrollBar> ExternalScrollbar;
};
