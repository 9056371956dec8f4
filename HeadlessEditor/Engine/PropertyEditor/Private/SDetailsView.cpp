#include "SDetailsView.h"

#include "SAdvancedDropdownRow.h"
#include "SDetailCategoryTableRow.h"
#include "SDetailSingleItemRow.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/Layout/SScrollBar.h"
#include "Widgets/Layout/SScrollBox.h"
#include "Widgets/SOverlay.h"
#include "Widgets/Views/SListView.h"

SDetailsView::~SDetailsView()
{
	if (Model.IsValid())
	{
		Model->OnLayoutChanged().Remove(LayoutChangedHandle);
	}
}

void SDetailsView::Construct(const FArguments& InArgs, const FDetailsViewArgs& InDetailsViewArgs)
{
	DetailsViewArgs = InDetailsViewArgs;
	ColumnSizeData.SetValueColumnWidth(DetailsViewArgs.ColumnWidth);
	ColumnSizeData.SetRightColumnMinWidth(DetailsViewArgs.RightColumnMinWidth);

	Model = MakeShared<FHeadlessDetailsView>();
	Model->SetNotifyHook(DetailsViewArgs.NotifyHook);
	LayoutChangedHandle = Model->OnLayoutChanged().AddSP(this, &SDetailsView::OnLayoutChanged);

	// The scroll bar lies over the rows' right edge, where every row keeps room for it.
	ExternalScrollbar = SNew(SScrollBar);
	ExternalScrollbar->SetUserVisibility(TAttribute<EVisibility>(this, &SDetailsView::GetScrollBarVisibility));

	ChildSlot
		[SNew(SOverlay) + SOverlay::Slot()[SNew(SScrollBox).ExternalScrollbar(ExternalScrollbar) + SScrollBox::Slot()[SNew(SListView<TSharedRef<FDetailTreeNode>>).ListItemsSource(&ShownTreeNodes).OnGenerateRow(this, &SDetailsView::OnGenerateRowForDetailTree).SelectionMode(ESelectionMode::None)]] + SOverlay::Slot().HAlign(HAlign_Right)[SNew(SBox).WidthOverride(16.0f)[ExternalScrollbar.ToSharedRef()]]];
}

const TArray<TWeakObjectPtr<UObject>>& SDetailsView::GetSelectedObjects() const
{
	return Model->GetSelectedObjects();
}

bool SDetailsView::HasClassDefaultObject() const
{
	return Model->HasClassDefaultObject();
}

bool SDetailsView::ShouldSetNewObjects(const TArray<UObject*>& InObjects) const
{
	const TArray<TWeakObjectPtr<UObject>>& Shown = Model->GetSelectedObjects();
	if (Shown.Num() != InObjects.Num())
	{
		return true;
	}
	for (UObject* Object : InObjects)
	{
		if (!Shown.Contains(TWeakObjectPtr<UObject>(Object)))
		{
			return true;
		}
	}
	return false;
}

void SDetailsView::SetObjects(const TArray<UObject*>& InObjects, bool bForceRefresh, bool bOverrideLock)
{
	if (bForceRefresh || ShouldSetNewObjects(InObjects))
	{
		Model->SetObjects(InObjects);
	}
}

void SDetailsView::SetObjects(const TArray<TWeakObjectPtr<UObject>>& InObjects, bool bForceRefresh, bool bOverrideLock)
{
	TArray<UObject*> Objects;
	for (const TWeakObjectPtr<UObject>& Object : InObjects)
	{
		if (UObject* Pinned = Object.Get())
		{
			Objects.Add(Pinned);
		}
	}
	SetObjects(Objects, bForceRefresh, bOverrideLock);
}

void SDetailsView::SetObject(UObject* InObject, bool bForceRefresh)
{
	SetObjects(TArray<UObject*>({InObject}), bForceRefresh);
}

bool SDetailsView::IsPropertyEditingEnabled() const
{
	return Model->IsPropertyEditingEnabled();
}

FOnFinishedChangingProperties& SDetailsView::OnFinishedChangingProperties() const
{
	return Model->OnFinishedChangingProperties();
}

void SDetailsView::ShowAllAdvancedProperties()
{
	for (const TSharedRef<FHeadlessDetailCategory>& Category : Model->GetCategories())
	{
		Model->SetAdvancedShown(*Category, true);
	}
}

void SDetailsView::ForceRefresh()
{
	Model->ForceRefresh();
}

bool SDetailsView::IsScrollBarVisible() const
{
	return ExternalScrollbar.IsValid() && ExternalScrollbar->ShouldBeVisible() == EVisibility::Visible;
}

void SDetailsView::Tick(const FGeometry& AllottedGeometry, const double InCurrentTime, const float InDeltaTime)
{
	Model->Tick();
}

void SDetailsView::OnLayoutChanged()
{
	RootTreeNodes = FDetailTreeNode::BuildTree(*this);
	ShownTreeNodes.Reset();
	for (const TSharedRef<FDetailTreeNode>& Root : RootTreeNodes)
	{
		Root->AppendShownNodes(ShownTreeNodes);
	}
	// The list makes its rows again when it is next laid out, not now: this may run from a click on one of them.
}

TSharedRef<ITableRow> SDetailsView::OnGenerateRowForDetailTree(TSharedRef<FDetailTreeNode> InTreeNode, const TSharedRef<STableViewBase>& OwnerTable)
{
	switch (InTreeNode->GetType())
	{
		case FDetailTreeNode::EType::Category:
			return SNew(SDetailCategoryTableRow, InTreeNode, OwnerTable).DisplayName(InTreeNode->GetCategory().DisplayName);
		case FDetailTreeNode::EType::AdvancedDropdown:
			return SNew(SAdvancedDropdownRow, InTreeNode, OwnerTable);
		default:
			return SNew(SDetailSingleItemRow, InTreeNode, OwnerTable);
	}
}

EVisibility SDetailsView::GetScrollBarVisibility() const
{
	return DetailsViewArgs.bShowScrollBar && RootTreeNodes.Num() > 0 ? EVisibility::Visible : EVisibility::Collapsed;
}
