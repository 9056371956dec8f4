#include "Widgets/Input/SCheckBox.h"

#include "Styling/StyleDefaults.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Layout/SBorder.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SOverlay.h"

SCheckBox::SCheckBox()
	: Style(&FCoreStyle::Get().GetWidgetStyle<FCheckBoxStyle>("Checkbox"))
	, IsCheckboxChecked(ECheckBoxState::Unchecked)
	, HorizontalAlignment(HAlign_Fill)
	, bCheckBoxContentUsesAutoWidth(true)
	, bIsFocusable(true)
{
}

void SCheckBox::Construct(const FArguments& InArgs)
{
	check(InArgs._Style);
	Style = InArgs._Style;
	CheckBoxTypeOverride = InArgs._Type;
	IsCheckboxChecked = InArgs._IsChecked;
	OnCheckStateChanged = InArgs._OnCheckStateChanged;
	HorizontalAlignment = InArgs._HAlign;
	bCheckBoxContentUsesAutoWidth = InArgs._CheckBoxContentUsesAutoWidth;
	PaddingOverride = InArgs._Padding;
	ForegroundColorOverride = InArgs._ForegroundColor;
	BorderBackgroundColorOverride = InArgs._BorderBackgroundColor;
	bIsFocusable = InArgs._IsFocusable;

	BuildCheckBox(InArgs._Content.Widget);
}

void SCheckBox::BuildCheckBox(TSharedRef<SWidget> InContent)
{
	if (ContentContainer.IsValid())
	{
		ContentContainer->SetContent(SNullWidget::NullWidget);
	}

	if (OnGetCheckBoxType() == ESlateCheckBoxType::CheckBox)
	{
		// The box, with its mark over it in the foreground colour, beside the user's content.
		SHorizontalBox::FSlot* ContentSlot = nullptr;
		ChildSlot
			[SNew(SHorizontalBox) + SHorizontalBox::Slot().AutoWidth().VAlign(VAlign_Center).HAlign(HAlign_Center)[SNew(SOverlay) + SOverlay::Slot()[SNew(SImage).Image(this, &SCheckBox::OnGetBackgroundImage)] + SOverlay::Slot()[SNew(SImage).Image(this, &SCheckBox::OnGetCheckImage).ColorAndOpacity(FSlateColor::UseForeground())]] + SHorizontalBox::Slot().Padding(TAttribute<FMargin>(this, &SCheckBox::OnGetPadding)).VAlign(VAlign_Center).Expose(ContentSlot)[SAssignNew(ContentContainer, SBorder).BorderImage(FStyleDefaults::GetNoBrush()).Padding(0.0f)[InContent]]];
		if (bCheckBoxContentUsesAutoWidth)
		{
			ContentSlot->SetAutoWidth();
		}
	}
	else
	{
		// A toggle button shows its state's image behind the content, as a button does.
		ChildSlot
			[SAssignNew(ContentContainer, SBorder)
					.BorderImage(this, &SCheckBox::OnGetCheckImage)
					.Padding(this, &SCheckBox::OnGetPadding)
					.BorderBackgroundColor(this, &SCheckBox::OnGetBorderBackgroundColor)
					.HAlign(HorizontalAlignment)[InContent]];
	}
}

bool SCheckBox::SupportsKeyboardFocus() const
{
	return bIsFocusable;
}

bool SCheckBox::IsInteractable() const
{
	return IsEnabled();
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

FSlateColor SCheckBox::GetForegroundColor() const
{
	const FSlateColor UserColor = ForegroundColorOverride.Get(FSlateColor::UseStyle());
	if (UserColor != FSlateColor::UseStyle())
	{
		return UserColor;
	}
	switch (IsCheckboxChecked.Get())
	{
		case ECheckBoxState::Checked:
			return Style->CheckedForeground;
		case ECheckBoxState::Undetermined:
			return Style->UndeterminedForeground;
		default:
			return Style->ForegroundColor;
	}
}

ECheckBoxState SCheckBox::GetCheckedState() const
{
	return IsCheckboxChecked.Get();
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

void SCheckBox::SetIsChecked(TAttribute<ECheckBoxState> InIsChecked)
{
	IsCheckboxChecked = MoveTemp(InIsChecked);
}

void SCheckBox::SetContent(const TSharedRef<SWidget>& InContent)
{
	ContentContainer->SetContent(InContent);
}

void SCheckBox::SetStyle(const FCheckBoxStyle* InStyle)
{
	Style = InStyle ? InStyle : &FCoreStyle::Get().GetWidgetStyle<FCheckBoxStyle>("Checkbox");
	BuildCheckBox(ContentContainer.IsValid() ? ContentContainer->GetContent() : SNullWidget::NullWidget);
}

FMargin SCheckBox::OnGetPadding() const
{
	return PaddingOverride.IsSet() ? PaddingOverride.Get() : Style->Padding;
}

FSlateColor SCheckBox::OnGetBorderBackgroundColor() const
{
	return BorderBackgroundColorOverride.IsSet() ? BorderBackgroundColorOverride.Get() : Style->BorderBackgroundColor;
}

ESlateCheckBoxType::Type SCheckBox::OnGetCheckBoxType() const
{
	return CheckBoxTypeOverride.IsSet() ? CheckBoxTypeOverride.GetValue() : Style->CheckBoxType;
}

const FSlateBrush* SCheckBox::OnGetCheckImage() const
{
	switch (IsCheckboxChecked.Get())
	{
		case ECheckBoxState::Checked:
			return &Style->CheckedImage;
		case ECheckBoxState::Undetermined:
			return &Style->UndeterminedImage;
		default:
			return &Style->UncheckedImage;
	}
}

const FSlateBrush* SCheckBox::OnGetBackgroundImage() const
{
	return &Style->BackgroundImage;
}
