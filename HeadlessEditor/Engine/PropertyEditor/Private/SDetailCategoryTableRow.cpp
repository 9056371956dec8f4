#include "SDetailCategoryTableRow.h"

#include "PropertyEditorConstants.h"
#include "SDetailExpanderArrow.h"
#include "SDetailRowIndent.h"
#include "Styling/AppStyle.h"
#include "Styling/ISlateStyle.h"
#include "Styling/StyleColors.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Text/STextBlock.h"

void SDetailCategoryTableRow::Construct(const FArguments& InArgs, TSharedRef<FDetailTreeNode> InOwnerTreeNode, const TSharedRef<STableViewBase>& InOwnerTableView)
{
	OwnerTreeNode = InOwnerTreeNode;
	const FSlateBrush* HeaderBrush = FAppStyle::Get().GetBrush("DetailsView.CategoryTop");

	const TSharedRef<SWidget> Header =
		SNew(SHorizontalBox) + SHorizontalBox::Slot().HAlign(HAlign_Left).VAlign(VAlign_Fill).AutoWidth()[SNew(SDetailRowIndent, SharedThis(this))] + SHorizontalBox::Slot().HAlign(HAlign_Left).VAlign(VAlign_Center).Padding(2.0f, 0.0f, 0.0f, 0.0f).AutoWidth()[SNew(SDetailExpanderArrow, SharedThis(this))] + SHorizontalBox::Slot().VAlign(VAlign_Center).Padding(4.0f, 0.0f, 0.0f, 0.0f).FillWidth(1.0f)[SNew(STextBlock).Text(InArgs._DisplayName).Font(FAppStyle::Get().GetFontStyle(PropertyEditorConstants::CategoryFontStyle)).TextStyle(&FAppStyle::Get().GetWidgetStyle<FTextBlockStyle>("DetailsView.CategoryTextStyle"))];

	const TSharedRef<SWidget> Row =
		SNew(SBorder)
			.BorderImage(FAppStyle::Get().GetBrush("DetailsView.GridLine"))
			.Padding(FMargin(0.0f, 0.0f, 0.0f, 1.0f))
				[SNew(SHorizontalBox) + SHorizontalBox::Slot()[SNew(SBorder).BorderImage(HeaderBrush).BorderBackgroundColor(FStyleColors::White).Padding(0.0f)[SNew(SBox).MinDesiredHeight(PropertyEditorConstants::PropertyRowHeight)[Header]]] + SHorizontalBox::Slot().HAlign(HAlign_Right).AutoWidth()[MakeScrollBarWell(HeaderBrush, FSlateColor(FStyleColors::White))]];

	ConstructRow(Row, InOwnerTableView);
}
