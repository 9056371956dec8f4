#include "SAdvancedDropdownRow.h"

#include "PropertyEditorConstants.h"
#include "SDetailRowIndent.h"
#include "Styling/AppStyle.h"
#include "Styling/ISlateStyle.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/Text/STextBlock.h"

#define LOCTEXT_NAMESPACE "DetailsView"

void SAdvancedDropdownRow::Construct(const FArguments& InArgs, TSharedRef<FDetailTreeNode> InOwnerTreeNode, const TSharedRef<STableViewBase>& InOwnerTableView)
{
	OwnerTreeNode = InOwnerTreeNode;

	const TSharedRef<SWidget> Content =
		SNew(SHorizontalBox) + SHorizontalBox::Slot().HAlign(HAlign_Left).VAlign(VAlign_Fill).AutoWidth()[SNew(SDetailRowIndent, SharedThis(this))] + SHorizontalBox::Slot().HAlign(HAlign_Left).VAlign(VAlign_Center).Padding(2.0f, 0.0f, 0.0f, 0.0f).AutoWidth()[SNew(SButton).ButtonStyle(&FAppStyle::Get().GetWidgetStyle<FButtonStyle>("NoBorder")).VAlign(VAlign_Center).HAlign(HAlign_Center).OnClicked(this, &SAdvancedDropdownRow::OnExpanderClicked).IsEnabled(this, &SAdvancedDropdownRow::IsButtonEnabled).ContentPadding(0.0f).IsFocusable(false).ToolTipText(this, &SAdvancedDropdownRow::GetAdvancedPulldownToolTipText)[SNew(SImage).Image(this, &SAdvancedDropdownRow::GetExpanderImage).ColorAndOpacity(FSlateColor::UseSubduedForeground())]] + SHorizontalBox::Slot().VAlign(VAlign_Center).HAlign(HAlign_Fill).Padding(4.0f, 0.0f, 0.0f, 0.0f)[SNew(SBox).VAlign(VAlign_Center).HeightOverride(PropertyEditorConstants::PropertyRowHeight)[SNew(STextBlock).Text(NSLOCTEXT("PropertyEditor", "Advanced", "Advanced")).Font(FAppStyle::Get().GetFontStyle(PropertyEditorConstants::PropertyFontStyle)).TextStyle(&FAppStyle::Get().GetWidgetStyle<FTextBlockStyle>("DetailsView.CategoryTextStyle"))]];

	const FSlateBrush* RowBrush = FAppStyle::Get().GetBrush("DetailsView.CategoryMiddle");
	const TSharedRef<SWidget> Row =
		SNew(SBorder)
			.BorderImage(FAppStyle::Get().GetBrush("DetailsView.GridLine"))
			.Padding(FMargin(0.0f, 0.0f, 0.0f, 1.0f))
				[SNew(SHorizontalBox) + SHorizontalBox::Slot().HAlign(HAlign_Fill)[SNew(SBorder).BorderImage(RowBrush).BorderBackgroundColor(this, &SAdvancedDropdownRow::GetRowBackgroundColor).Padding(0.0f)[Content]] + SHorizontalBox::Slot().HAlign(HAlign_Right).VAlign(VAlign_Fill).AutoWidth()[MakeScrollBarWell(RowBrush, TAttribute<FSlateColor>(this, &SAdvancedDropdownRow::GetRowBackgroundColor))]];

	ConstructRow(Row, InOwnerTableView);
}

FText SAdvancedDropdownRow::GetAdvancedPulldownToolTipText() const
{
	return IsItemExpanded() ? LOCTEXT("HideAdvanced", "Hide Advanced") : LOCTEXT("ShowAdvanced", "Show Advanced");
}

const FSlateBrush* SAdvancedDropdownRow::GetExpanderImage() const
{
	return FAppStyle::Get().GetBrush(IsItemExpanded() ? "TreeArrow_Expanded" : "TreeArrow_Collapsed");
}

FReply SAdvancedDropdownRow::OnExpanderClicked()
{
	ToggleExpansion();
	return FReply::Handled();
}

bool SAdvancedDropdownRow::IsButtonEnabled() const
{
	const TSharedPtr<FDetailTreeNode> Node = OwnerTreeNode.Pin();
	return Node.IsValid() && Node->IsAdvancedDropdownEnabled();
}

FSlateColor SAdvancedDropdownRow::GetRowBackgroundColor() const
{
	return PropertyEditorConstants::GetRowBackgroundColor(0, false);
}

#undef LOCTEXT_NAMESPACE
