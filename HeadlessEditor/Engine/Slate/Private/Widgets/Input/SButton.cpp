#include "Widgets/Input/SButton.h"

#include "Rendering/DrawElements.h"
#include "Styling/WidgetStyle.h"
#include "Widgets/Text/STextBlock.h"

SButton::SButton()
	: Style(&FCoreStyle::Get().GetWidgetStyle<FButtonStyle>("Button"))
	, BorderForegroundColorAttribute(FSlateColor::UseStyle())
	, ContentPaddingAttribute(FMargin(4.0f, 2.0f))
	, bIsFocusable(true)
	, bIsPressed(false)
{
}

void SButton::Construct(const FArguments& InArgs)
{
	bIsFocusable = InArgs._IsFocusable;
	BorderForegroundColorAttribute = InArgs._ForegroundColor;
	OnClicked = InArgs._OnClicked;
	OnPressed = InArgs._OnPressed;
	OnReleased = InArgs._OnReleased;

	// A text makes the content a text block in the button's text style, unless content is given.
	TSharedRef<SWidget> Content = InArgs._Content.Widget;
	if (Content == SNullWidget::NullWidget && (InArgs._Text.IsBound() || !InArgs._Text.Get(FText::GetEmpty()).IsEmpty()))
	{
		Content = SNew(STextBlock)
					  .Visibility(EVisibility::HitTestInvisible)
					  .Text(InArgs._Text)
					  .TextStyle(InArgs._TextStyle);
	}

	SBorder::Construct(SBorder::FArguments()
						   .ContentScale(InArgs._ContentScale)
						   .DesiredSizeScale(InArgs._DesiredSizeScale)
						   .BorderBackgroundColor(InArgs._ButtonColorAndOpacity)
						   .HAlign(InArgs._HAlign)
						   .VAlign(InArgs._VAlign)
							   [Content]);

	SetContentPadding(InArgs._ContentPadding);
	SetButtonStyle(InArgs._ButtonStyle);
}

void SButton::SetButtonStyle(const FButtonStyle* ButtonStyle)
{
	Style = ButtonStyle ? ButtonStyle : &FCoreStyle::Get().GetWidgetStyle<FButtonStyle>("Button");
	// The brush and the padding follow the button's state each time they are read.
	SetBorderImage(TAttribute<const FSlateBrush*>::CreateSP(this, &SButton::GetStateBrush));
	SetPadding(TAttribute<FMargin>::CreateSP(this, &SButton::GetCombinedPadding));
	SetShowEffectWhenDisabled(TAttribute<bool>::CreateSP(this, &SButton::GetShowDisabledEffect));
}

FSlateColor SButton::GetForegroundColor() const
{
	// Without a colour of its own, the button takes its style's colour for its state.
	const FSlateColor Foreground = BorderForegroundColorAttribute.Get();
	if (Foreground != FSlateColor::UseStyle())
	{
		return Foreground;
	}
	return IsPressed() ? Style->PressedForeground : Style->NormalForeground;
}

FSlateColor SButton::GetDisabledForegroundColor() const
{
	return Style->DisabledForeground;
}

const FSlateBrush* SButton::GetStateBrush() const
{
	if (!GetShowDisabledEffect() && !IsInteractable())
	{
		return &Style->Disabled;
	}
	return IsPressed() ? &Style->Pressed : &Style->Normal;
}

FMargin SButton::GetCombinedPadding() const
{
	return ContentPaddingAttribute.Get() + (IsPressed() ? Style->PressedPadding : Style->NormalPadding);
}

bool SButton::GetShowDisabledEffect() const
{
	return Style->Disabled.DrawAs == ESlateBrushDrawType::NoDrawType;
}

int32 SButton::OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	const bool bEnabled = ShouldBeEnabled(bParentEnabled);
	const bool bShowDisabledEffect = GetShowDisabledEffect();
	const FSlateBrush* BrushResource = !bShowDisabledEffect && !bEnabled ? &Style->Disabled : GetBorderImage();
	const ESlateDrawEffect DrawEffects = bShowDisabledEffect && !bEnabled ? ESlateDrawEffect::DisabledEffect : ESlateDrawEffect::None;
	if (BrushResource && BrushResource->DrawAs != ESlateBrushDrawType::NoDrawType)
	{
		const FLinearColor Tint = BrushResource->GetTint(InWidgetStyle) * InWidgetStyle.GetColorAndOpacityTint() * GetBorderBackgroundColor().GetColor(InWidgetStyle);
		FSlateDrawElement::MakeBox(OutDrawElements, LayerId, AllottedGeometry.ToPaintGeometry(), BrushResource, DrawEffects, Tint);
	}
	return SCompoundWidget::OnPaint(Args, AllottedGeometry, MyCullingRect, OutDrawElements, LayerId, InWidgetStyle, bEnabled);
}

FVector2D SButton::ComputeDesiredSize(float LayoutScaleMultiplier) const
{
	if (ChildSlot.GetWidget() == SNullWidget::NullWidget)
	{
		return GetBorderImage()->ImageSize;
	}
	return SBorder::ComputeDesiredSize(LayoutScaleMultiplier);
}

void SButton::SimulateClick()
{
	ExecuteOnClick();
}

FReply SButton::ExecuteOnClick()
{
	if (OnClicked.IsBound())
	{
		return OnClicked.Execute();
	}
	return FReply::Handled();
}

FReply SButton::OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent)
{
	// The accept keys press the button; the click itself comes when the key is released.
	if (IsEnabled() && (InKeyEvent.GetKey() == EKeys::Enter || InKeyEvent.GetKey() == EKeys::SpaceBar))
	{
		bIsPressed = true;
		OnPressed.ExecuteIfBound();
		return FReply::Handled();
	}
	return SBorder::OnKeyDown(MyGeometry, InKeyEvent);
}

FReply SButton::OnKeyUp(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent)
{
	if (bIsPressed && IsEnabled() && (InKeyEvent.GetKey() == EKeys::Enter || InKeyEvent.GetKey() == EKeys::SpaceBar))
	{
		bIsPressed = false;
		OnReleased.ExecuteIfBound();
		return ExecuteOnClick();
	}
	return FReply::Unhandled();
}
