#include "SDetailSingleItemRow.h"

#include "DetailColumnSizeData.h"
#include "DetailLayoutBuilder.h"
#include "PropertyEditorConstants.h"
#include "SConstrainedBox.h"
#include "SDetailExpanderArrow.h"
#include "SDetailRowIndent.h"
#include "Styling/AppStyle.h"
#include "Styling/ISlateStyle.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/Layout/SSplitter.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Text/STextBlock.h"

namespace
{
	/** Room between the name column's edge and the value. */
	const FMargin ValuePadding(12.0f, 0.0f, 2.0f, 0.0f);
}

void SDetailSingleItemRow::Construct(const FArguments& InArgs, TSharedRef<FDetailTreeNode> InOwnerTreeNode, const TSharedRef<STableViewBase>& InOwnerTableView)
{
	OwnerTreeNode = InOwnerTreeNode;
	const FDetailWidgetRow WidgetRow = MakeWidgetRow(*InOwnerTreeNode->GetRow());

	const TSharedRef<SWidget> Row =
		SNew(SBorder)
			.BorderImage(FAppStyle::Get().GetBrush("DetailsView.GridLine"))
			.Padding(FMargin(0.0f, 0.0f, 0.0f, 1.0f))
			.Clipping(EWidgetClipping::ClipToBounds)
				[SNew(SBox)
						.MinDesiredHeight(PropertyEditorConstants::PropertyRowHeight)
							[SNew(SHorizontalBox) + SHorizontalBox::Slot().HAlign(HAlign_Fill).VAlign(VAlign_Fill)[SNew(SBorder).BorderImage(FAppStyle::Get().GetBrush("DetailsView.CategoryMiddle")).BorderBackgroundColor(this, &SDetailSingleItemRow::GetOuterBackgroundColor).Padding(0.0f)[MakeColumns(WidgetRow, WidgetRow.HasColumns())]] + SHorizontalBox::Slot().HAlign(HAlign_Right).VAlign(VAlign_Fill).AutoWidth()[MakeScrollBarWell(FAppStyle::Get().GetBrush("DetailsView.CategoryMiddle"), TAttribute<FSlateColor>(this, &SDetailSingleItemRow::GetOuterBackgroundColor))]]];

	ConstructRow(Row, InOwnerTableView);
}

FDetailWidgetRow SDetailSingleItemRow::MakeWidgetRow(const FHeadlessDetailRow& Row)
{
	if (Row.Kind != FHeadlessDetailRow::EKind::Group || Row.Widgets.HasAnyContent())
	{
		return Row.Widgets;
	}
	FDetailWidgetRow GroupHeader;
	GroupHeader.VisibilityAttr = Row.Widgets.VisibilityAttr;
	GroupHeader.NameContent()
		[SNew(SButton)
				.ButtonStyle(&FAppStyle::Get().GetWidgetStyle<FButtonStyle>("NoBorder"))
				.ContentPadding(FMargin(0.0f, 2.0f, 0.0f, 2.0f))
				.OnClicked(this, &SDetailSingleItemRow::OnGroupNameClicked)
				.ForegroundColor(FSlateColor::UseForeground())
					[SNew(STextBlock)
							.Font(IDetailLayoutBuilder::GetDetailFont())
							.Text(Row.DisplayName)]];
	return GroupHeader;
}

FReply SDetailSingleItemRow::OnGroupNameClicked()
{
	ToggleExpansion();
	return FReply::Handled();
}

TSharedRef<SHorizontalBox> SDetailSingleItemRow::MakeNameColumn(const FDetailWidgetDecl& Content)
{
	TSharedRef<SHorizontalBox> NameColumn = SNew(SHorizontalBox).Clipping(EWidgetClipping::OnDemand);
	NameColumn->AddSlot().HAlign(HAlign_Left).VAlign(VAlign_Fill).Padding(0.0f).AutoWidth()[SNew(SDetailRowIndent, SharedThis(this))];
	NameColumn->AddSlot().HAlign(HAlign_Left).VAlign(VAlign_Center).Padding(2.0f, 0.0f, 0.0f, 0.0f).AutoWidth()[SNew(SDetailExpanderArrow, SharedThis(this))];
	NameColumn->AddSlot().HAlign(Content.HorizontalAlignment).VAlign(Content.VerticalAlignment).Padding(2.0f, 0.0f, 0.0f, 0.0f)[Content.Widget];
	return NameColumn;
}

TSharedRef<SWidget> SDetailSingleItemRow::MakeValueColumn(const FDetailWidgetRow& WidgetRow, const TAttribute<bool>& IsValueEnabled) const
{
	const TSharedRef<SWidget> Value = SNew(SConstrainedBox).MinWidth(WidgetRow.ValueWidget.MinWidth).MaxWidth(WidgetRow.ValueWidget.MaxWidth)[WidgetRow.ValueWidget.Widget];
	Value->SetEnabled(IsValueEnabled);
	return SNew(SHorizontalBox)
			   .Clipping(EWidgetClipping::OnDemand) +
		SHorizontalBox::Slot()
			.HAlign(WidgetRow.ValueWidget.HorizontalAlignment)
			.VAlign(WidgetRow.ValueWidget.VerticalAlignment)
			.Padding(ValuePadding)
				[Value] +
		SHorizontalBox::Slot()
			.HAlign(WidgetRow.ExtensionWidget.HorizontalAlignment)
			.VAlign(WidgetRow.ExtensionWidget.VerticalAlignment)
			.Padding(5.0f, 0.0f, 0.0f, 0.0f)
			.AutoWidth()
				[WidgetRow.ExtensionWidget.Widget];
}

TSharedRef<SWidget> SDetailSingleItemRow::MakeColumns(const FDetailWidgetRow& WidgetRow, bool bHasMultipleColumns)
{
	FDetailColumnSizeData& ColumnSizeData = OwnerTreeNode.Pin()->GetDetailsView().GetColumnSizeData();
	const TAttribute<bool> RowIsEnabled = WidgetRow.IsEnabledAttr;
	const TAttribute<bool> RowIsValueEnabled = WidgetRow.IsValueEnabledAttr;
	const TAttribute<bool> IsEnabled = TAttribute<bool>::CreateLambda([RowIsEnabled]()
		{ return RowIsEnabled.Get(true); });
	const TAttribute<bool> IsValueEnabled = TAttribute<bool>::CreateLambda([RowIsEnabled, RowIsValueEnabled]()
		{ return RowIsEnabled.Get(true) && RowIsValueEnabled.Get(true); });

	TSharedRef<SSplitter> Splitter = SNew(SSplitter)
										 .Style(&FAppStyle::Get().GetWidgetStyle<FSplitterStyle>("DetailsView.Splitter"))
										 .PhysicalSplitterHandleSize(1.0f)
										 .HighlightedHandleIndex(ColumnSizeData.GetHoveredSplitterIndex());
	if (bHasMultipleColumns)
	{
		if (WidgetRow.HasNameContent())
		{
			WidgetRow.NameWidget.Widget->SetEnabled(IsEnabled);
		}
		Splitter->AddSlot().Value(ColumnSizeData.GetNameColumnWidth())[MakeNameColumn(WidgetRow.NameWidget)];
		Splitter->AddSlot().Value(ColumnSizeData.GetValueColumnWidth())[MakeValueColumn(WidgetRow, IsValueEnabled)];
	}
	else
	{
		// One widget over both columns; the whole column is disabled with the row.
		const TSharedRef<SHorizontalBox> WholeRow = MakeNameColumn(WidgetRow.WholeRowWidget);
		WholeRow->SetEnabled(IsEnabled);
		Splitter->AddSlot().Value(ColumnSizeData.GetWholeRowColumnWidth())[WholeRow];
	}
	// The right column holds the reset-to-default button in the editor, which the headless editor does not draw.
	Splitter->AddSlot()
		.Value(ColumnSizeData.GetRightColumnWidth())
		.MinSize(ColumnSizeData.GetRightColumnMinWidth())
			[SNew(SBorder)
					.BorderImage(FAppStyle::Get().GetBrush("DetailsView.CategoryMiddle"))
					.BorderBackgroundColor(this, &SDetailSingleItemRow::GetOuterBackgroundColor)
					.Padding(0.0f)];

	return SNew(SBorder)
		.BorderImage(FAppStyle::Get().GetBrush("DetailsView.CategoryMiddle"))
		.BorderBackgroundColor(this, &SDetailSingleItemRow::GetInnerBackgroundColor)
		.Padding(0.0f)
			[Splitter];
}

FSlateColor SDetailSingleItemRow::GetOuterBackgroundColor() const
{
	return PropertyEditorConstants::GetRowBackgroundColor(0, false);
}

FSlateColor SDetailSingleItemRow::GetInnerBackgroundColor() const
{
	return PropertyEditorConstants::GetRowBackgroundColor(GetIndentLevelForBackgroundColor(), false);
}
