#include "Widgets/Input/SComboButton.h"

#include "Layout/ArrangedChildren.h"
#include "Layout/LayoutUtils.h"
#include "Rendering/DrawElements.h"
#include "Styling/WidgetStyle.h"

#include <algorithm>

SComboButton::SComboButton()
	: bIsFocusable(true)
	, bIsOpen(false)
	, ComboButtonStyle(&FAppStyle::Get().GetWidgetStyle<FComboButtonStyle>("ComboButton"))
	, ButtonStyle(&ComboButtonStyle->ButtonStyle)
	, bHasDownArrow(true)
{
}

void SComboButton::Construct(const FArguments& InArgs)
{
	ComboButtonStyle = InArgs._ComboButtonStyle ? InArgs._ComboButtonStyle : &FAppStyle::Get().GetWidgetStyle<FComboButtonStyle>("ComboButton");
	ButtonStyle = InArgs._ButtonStyle ? InArgs._ButtonStyle : &ComboButtonStyle->ButtonStyle;
	ContentPadding = InArgs._ContentPadding.IsSet() ? InArgs._ContentPadding : TAttribute<FMargin>(ComboButtonStyle->ContentPadding);
	ForegroundColorOverride = InArgs._ForegroundColor;
	ButtonColorAndOpacity = InArgs._ButtonColorAndOpacity;
	bHasDownArrow = InArgs._HasDownArrow;
	OnGetMenuContent = InArgs._OnGetMenuContent;
	OnMenuOpenChanged = InArgs._OnMenuOpenChanged;
	OnComboBoxOpened = InArgs._OnComboBoxOpened;
	bIsFocusable = InArgs._IsFocusable;
	if (InArgs._MenuContent.Widget != SNullWidget::NullWidget)
	{
		MenuContent = InArgs._MenuContent.Widget;
	}

	// The content fills the button beside the arrow, aligned in that space as asked.
	ChildSlot
		.HAlign(InArgs._HAlign)
		.VAlign(InArgs._VAlign)
			[InArgs._ButtonContent.Widget];
}

FMargin SComboButton::GetButtonPadding() const
{
	return ContentPadding.Get() + ButtonStyle->NormalPadding;
}

FVector2D SComboButton::GetDownArrowAreaSize() const
{
	return bHasDownArrow ? ComboButtonStyle->DownArrowImage.ImageSize + ComboButtonStyle->DownArrowPadding.GetDesiredSize() : FVector2D::ZeroVector;
}

FVector2D SComboButton::ComputeDesiredSize(float LayoutScaleMultiplier) const
{
	const FVector2D Content = SCompoundWidget::ComputeDesiredSize(LayoutScaleMultiplier);
	const FVector2D Arrow = GetDownArrowAreaSize();
	return FVector2D(Content.X + Arrow.X, std::max(Content.Y, Arrow.Y)) + GetButtonPadding().GetDesiredSize();
}

void SComboButton::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	const FMargin Padding = GetButtonPadding();
	const FVector2D Inside = AllottedGeometry.GetLocalSize() - Padding.GetDesiredSize();
	const FVector2D ContentArea(std::max(0.0, Inside.X - GetDownArrowAreaSize().X), std::max(0.0, Inside.Y));
	ArrangeSingleChild(AllottedGeometry.MakeChild(FVector2D(Padding.Left, Padding.Top), ContentArea), ArrangedChildren, ChildSlot, GetContentScale());
}

FSlateColor SComboButton::GetForegroundColor() const
{
	const FSlateColor Foreground = ForegroundColorOverride.Get(FSlateColor::UseStyle());
	return Foreground != FSlateColor::UseStyle() ? Foreground : ButtonStyle->NormalForeground;
}

FSlateColor SComboButton::GetDisabledForegroundColor() const
{
	return ButtonStyle->DisabledForeground;
}

int32 SComboButton::OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	const bool bEnabled = ShouldBeEnabled(bParentEnabled);
	// As a button: the style's disabled brush replaces the disabled effect when the style has one.
	const bool bShowDisabledEffect = ButtonStyle->Disabled.DrawAs == ESlateBrushDrawType::NoDrawType;
	const FSlateBrush* Brush = !bShowDisabledEffect && !bEnabled ? &ButtonStyle->Disabled : &ButtonStyle->Normal;
	const ESlateDrawEffect DrawEffects = bShowDisabledEffect && !bEnabled ? ESlateDrawEffect::DisabledEffect : ESlateDrawEffect::None;
	const FLinearColor Tint = InWidgetStyle.GetColorAndOpacityTint();
	FSlateDrawElement::MakeBox(OutDrawElements, LayerId, AllottedGeometry.ToPaintGeometry(), Brush, DrawEffects, Brush->GetTint(InWidgetStyle) * Tint * ButtonColorAndOpacity.Get(FLinearColor::White).GetColor(InWidgetStyle));

	const int32 ContentLayer = SCompoundWidget::OnPaint(Args, AllottedGeometry, MyCullingRect, OutDrawElements, LayerId, InWidgetStyle, bEnabled);
	if (!bHasDownArrow)
	{
		return ContentLayer;
	}
	// The arrow sits at the right of the button, centred in its height, in the button's foreground.
	const FMargin Padding = GetButtonPadding();
	const FMargin ArrowPadding = ComboButtonStyle->DownArrowPadding;
	const FVector2D ArrowSize = ComboButtonStyle->DownArrowImage.ImageSize;
	const FVector2D LocalSize = AllottedGeometry.GetLocalSize();
	const FVector2D ArrowOffset(LocalSize.X - Padding.Right - ArrowPadding.Right - ArrowSize.X, Padding.Top + (LocalSize.Y - Padding.GetDesiredSize().Y - ArrowSize.Y) / 2.0);
	const FLinearColor Foreground = (bEnabled ? GetForegroundColor() : GetDisabledForegroundColor()).GetColor(InWidgetStyle);
	FSlateDrawElement::MakeBox(OutDrawElements, LayerId + 1, AllottedGeometry.ToPaintGeometry(ArrowOffset, ArrowSize), &ComboButtonStyle->DownArrowImage, bEnabled ? ESlateDrawEffect::None : ESlateDrawEffect::DisabledEffect, ComboButtonStyle->DownArrowImage.GetTint(InWidgetStyle) * Foreground * Tint);
	return std::max(ContentLayer, LayerId + 1);
}

void SComboButton::SetIsOpen(bool InIsOpen, const bool bFocusMenu, const int32 FocusUserIndex)
{
	if (InIsOpen == bIsOpen)
	{
		return;
	}
	bIsOpen = InIsOpen;
	if (bIsOpen && OnGetMenuContent.IsBound())
	{
		MenuContent = OnGetMenuContent.Execute();
	}
	OnMenuOpenChanged.ExecuteIfBound(bIsOpen);
	if (bIsOpen)
	{
		OnComboBoxOpened.ExecuteIfBound();
	}
}

FReply SComboButton::OnButtonClicked()
{
	SetIsOpen(!IsOpen());
	return FReply::Handled();
}
