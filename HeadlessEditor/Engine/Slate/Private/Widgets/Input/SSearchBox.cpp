#include "Widgets/Input/SSearchBox.h"

#include "Styling/AppStyle.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Layout/SSpacer.h"
#include "Widgets/SBoxPanel.h"

void SSearchBox::Construct(const FArguments& InArgs)
{
	check(InArgs._Style);
	SEditableTextBox::Construct(SEditableTextBox::FArguments()
									.Style(&InArgs._Style->TextBoxStyle)
									.Text(InArgs._InitialText.Get(FText::GetEmpty()))
									.HintText(InArgs._HintText)
									.SelectAllTextWhenFocused(InArgs._SelectAllTextWhenFocused)
									.RevertTextOnEscape(true)
									.ClearKeyboardFocusOnCommit(false)
									.OnTextChanged(InArgs._OnTextChanged)
									.OnTextCommitted(InArgs._OnTextCommitted)
									.MinDesiredWidth(InArgs._MinDesiredWidth));

	// The glass tells the user the box is for searching; the cross clears what was typed.
	const int32 GlassImageSlotIndex = InArgs._Style->bLeftAlignGlassImageAndClearButton ? 0 : Box->NumSlots();
	Box->InsertSlot(GlassImageSlotIndex)
		.AutoWidth()
		.Padding(InArgs._Style->ImagePadding)
		.HAlign(HAlign_Center)
		.VAlign(VAlign_Center)[SNew(SImage).Image(&InArgs._Style->GlassImage).ColorAndOpacity(FSlateColor::UseForeground())];
	Box->InsertSlot(GlassImageSlotIndex + 1)
		.AutoWidth()
		.HAlign(HAlign_Center)
		.VAlign(VAlign_Center)
			[SNew(SButton)
					.Visibility(this, &SSearchBox::GetXVisibility)
					.ButtonStyle(&FAppStyle::Get(), "HoverOnlyButton")
					.ContentPadding(FMargin(2.0f, 0.0f))
					.HAlign(HAlign_Center)
					.VAlign(VAlign_Center)
					.OnClicked(this, &SSearchBox::OnClearSearch)
					.IsFocusable(true)[SNew(SImage).Image(&InArgs._Style->ClearImage).ColorAndOpacity(FSlateColor::UseForeground())]];
	// Room at the end, as the box is rounded at both ends.
	Box->AddSlot().AutoWidth()[SNew(SSpacer).Size(FVector2D(7.0, 0.0))];
}

EVisibility SSearchBox::GetXVisibility() const
{
	return GetText().IsEmpty() ? EVisibility::Collapsed : EVisibility::Visible;
}

FReply SSearchBox::OnClearSearch()
{
	SetText(FText::GetEmpty());
	return FReply::Handled();
}
