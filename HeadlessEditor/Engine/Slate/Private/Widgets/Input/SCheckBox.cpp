#include "Widgets/Input/SCheckBox.h"

SCheckBox::SCheckBox()
	: IsCheckboxChecked(ECheckBoxState::Unchecked)
	, bIsFocusable(true)
{
}

void SCheckBox::Construct(const FArguments& InArgs)
{
	IsCheckboxChecked = InArgs._IsChecked;
	OnCheckStateChanged = InArgs._OnCheckStateChanged;
	bIsFocusable = InArgs._IsFocusable;

	ChildSlot
		.HAlign(InArgs._HAlign)
		.Padding(InArgs._Padding.IsSet() ? InArgs._Padding : TAttribute<FMargin>(FMargin(0.0f)))
			[InArgs._Content.Widget];
}

FReply SCheckBox::OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent)
{
	// The accept keys toggle the box, as a click does.
	if (InKeyEvent.GetKey() == EKeys::Enter || InKeyEvent.GetKey() == EKeys::SpaceBar)
	{
		ToggleCheckedState();
		return FReply::Handled();
	}
	return SCompoundWidget::OnKeyDown(MyGeometry, InKeyEvent);
}

void SCheckBox::ToggleCheckedState()
{
	// A bound state is left to its owner, who learns of the change through the event.
	const ECheckBoxState State = IsCheckboxChecked.Get();
	const ECheckBoxState NewState = State == ECheckBoxState::Checked ? ECheckBoxState::Unchecked : ECheckBoxState::Checked;
	if (!IsCheckboxChecked.IsBound())
	{
		IsCheckboxChecked.Set(NewState);
	}
	OnCheckStateChanged.ExecuteIfBound(NewState);
}
