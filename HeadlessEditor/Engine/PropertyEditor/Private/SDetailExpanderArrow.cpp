#include "SDetailExpanderArrow.h"

#include "SConstrainedBox.h"
#include "SDetailTableRowBase.h"
#include "Styling/AppStyle.h"
#include "Styling/ISlateStyle.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Input/SButton.h"

void SDetailExpanderArrow::Construct(const FArguments& InArgs, TSharedRef<SDetailTableRowBase> DetailsRow)
{
	Row = DetailsRow;
	ChildSlot
		[SNew(SConstrainedBox)
				.MinWidth(12.0f)
				.Visibility(this, &SDetailExpanderArrow::GetExpanderVisibility)
					[SNew(SButton)
							.ButtonStyle(&FAppStyle::Get().GetWidgetStyle<FButtonStyle>("NoBorder"))
							.VAlign(VAlign_Center)
							.HAlign(HAlign_Center)
							.OnClicked(this, &SDetailExpanderArrow::OnExpanderClicked)
							.ContentPadding(0.0f)
							.IsFocusable(false)
								[SNew(SImage)
										.Image(this, &SDetailExpanderArrow::GetExpanderImage)
										.ColorAndOpacity(FSlateColor::UseSubduedForeground())]]];
}

EVisibility SDetailExpanderArrow::GetExpanderVisibility() const
{
	const TSharedPtr<SDetailTableRowBase> RowPtr = Row.Pin();
	if (!RowPtr.IsValid())
	{
		return EVisibility::Collapsed;
	}
	return RowPtr->DoesItemHaveChildren() ? EVisibility::Visible : EVisibility::Hidden;
}

const FSlateBrush* SDetailExpanderArrow::GetExpanderImage() const
{
	const TSharedPtr<SDetailTableRowBase> RowPtr = Row.Pin();
	if (!RowPtr.IsValid())
	{
		return FAppStyle::Get().GetBrush("NoBrush");
	}
	return FAppStyle::Get().GetBrush(RowPtr->IsItemExpanded() ? "TreeArrow_Expanded" : "TreeArrow_Collapsed");
}

FReply SDetailExpanderArrow::OnExpanderClicked()
{
	const TSharedPtr<SDetailTableRowBase> RowPtr = Row.Pin();
	if (!RowPtr.IsValid())
	{
		return FReply::Unhandled();
	}
	RowPtr->ToggleExpansion();
	return FReply::Handled();
}
