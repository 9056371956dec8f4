#include "Widgets/Input/SCheckBox.h"

#include "Layout/ArrangedChildren.h"
#include "Layout/LayoutUtils.h"
#include "Rendering/DrawElements.h"
#include "Styling/WidgetStyle.h"
#include "Types/PaintArgs.h"

#include <algorithm>

SCheckBox::SCheckBox()
	: Style(&FCoreStyle::Get().GetWidgetStyle<FCheckBoxStyle>("Checkbox"))
	, IsCheckboxChecked(ECheckBoxState::Unchecked)
	, bIsFocusable(true)
{
}

void SCheckBox::Construct(const FArguments& InArgs)
{
	Style = InArgs._Style ? InArgs._Style : &FCoreStyle::Get().GetWidgetStyle<FCheckBoxStyle>("Checkbox");
	CheckBoxTypeOverride = InArgs._Type;
	IsCheckboxChecked = InArgs._IsChecked;
	OnCheckStateChanged = InArgs._OnCheckStateChanged;
	bIsFocusable = InArgs._IsFocusable;
	PaddingOverride = InArgs._Padding;

	// A toggle button pads its content inside its brush; a check box puts the padding between box and content.
	ChildSlot
		.HAlign(InArgs._HAlign)
		.VAlign(IsToggleButton() ? VAlign_Fill : VAlign_Center)
		.Padding(TAttribute<FMargin>::CreateSP(this, &SCheckBox::OnGetPadding))
			[InArgs._Content.Widget];
}

bool SCheckBox::IsToggleButton() const
{
	return CheckBoxTypeOverride.Get(Style->CheckBoxType) == ESlateCheckBoxType::ToggleButton;
}

FMargin SCheckBox::OnGetPadding() const
{
	return PaddingOverride.IsSet() ? PaddingOverride.Get() : Style->Padding;
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

FSlateColor SCheckBox::GetForegroundColor() const
{
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

FVector2D SCheckBox::GetCheckImageAreaSize() const
{
	// The box and the mark lie on top of each other; the area is as large as the larger.
	return OnGetBackgroundImage()->ImageSize.ComponentMax(OnGetCheckImage()->ImageSize);
}

FVector2D SCheckBox::ComputeDesiredSize(float LayoutScaleMultiplier) const
{
	const FVector2D Content = SCompoundWidget::ComputeDesiredSize(LayoutScaleMultiplier);
	if (IsToggleButton())
	{
		return Content;
	}
	const FVector2D ImageArea = GetCheckImageAreaSize();
	return FVector2D(ImageArea.X + Content.X, std::max(ImageArea.Y, Content.Y));
}

void SCheckBox::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	if (IsToggleButton())
	{
		SCompoundWidget::OnArrangeChildren(AllottedGeometry, ArrangedChildren);
		return;
	}
	// The content takes its own width beside the box, centred in the check box's height.
	const float ImageWidth = static_cast<float>(GetCheckImageAreaSize().X);
	const TSharedRef<SWidget>& Content = ChildSlot.GetWidget();
	const float ContentWidth = std::min(static_cast<float>(Content->GetDesiredSize().X + ChildSlot.GetPadding().GetDesiredSize().X), std::max(0.0f, static_cast<float>(AllottedGeometry.GetLocalSize().X) - ImageWidth));
	const FGeometry ContentSlotGeometry = AllottedGeometry.MakeChild(FVector2D(ImageWidth, 0.0), FVector2D(ContentWidth, AllottedGeometry.GetLocalSize().Y));
	ArrangeSingleChild(ContentSlotGeometry, ArrangedChildren, ChildSlot, GetContentScale());
}

int32 SCheckBox::OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	const bool bEnabled = ShouldBeEnabled(bParentEnabled);
	const ESlateDrawEffect DrawEffects = bEnabled ? ESlateDrawEffect::None : ESlateDrawEffect::DisabledEffect;
	const FLinearColor Tint = InWidgetStyle.GetColorAndOpacityTint();
	if (IsToggleButton())
	{
		const FSlateBrush* StateBrush = OnGetCheckImage();
		FSlateDrawElement::MakeBox(OutDrawElements, LayerId, AllottedGeometry.ToPaintGeometry(), StateBrush, DrawEffects, StateBrush->GetTint(InWidgetStyle) * Tint * Style->BorderBackgroundColor.GetColor(InWidgetStyle));
		return SCompoundWidget::OnPaint(Args, AllottedGeometry, MyCullingRect, OutDrawElements, LayerId, InWidgetStyle, bEnabled);
	}

	// The box and its mark are centred in the height, the mark in the check box's foreground.
	const FVector2D ImageArea = GetCheckImageAreaSize();
	const FVector2D ImageOffset(0.0, (AllottedGeometry.GetLocalSize().Y - ImageArea.Y) / 2.0);
	const FPaintGeometry ImageGeometry = AllottedGeometry.ToPaintGeometry(ImageOffset, ImageArea);
	const FSlateBrush* Background = OnGetBackgroundImage();
	FSlateDrawElement::MakeBox(OutDrawElements, LayerId, ImageGeometry, Background, DrawEffects, Background->GetTint(InWidgetStyle) * Tint);
	const FLinearColor Foreground = GetForegroundColor().GetColor(InWidgetStyle);
	const FSlateBrush* Mark = OnGetCheckImage();
	FSlateDrawElement::MakeBox(OutDrawElements, LayerId + 1, ImageGeometry, Mark, DrawEffects, Mark->GetTint(InWidgetStyle) * Foreground * Tint);
	return SCompoundWidget::OnPaint(Args, AllottedGeometry, MyCullingRect, OutDrawElements, LayerId + 1, InWidgetStyle, bEnabled);
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
