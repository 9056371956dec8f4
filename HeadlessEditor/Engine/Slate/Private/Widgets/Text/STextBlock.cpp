#include "Widgets/Text/STextBlock.h"

#include "Application/SlateApplicationBase.h"
#include "Fonts/FontMeasure.h"
#include "Rendering/DrawElements.h"
#include "Rendering/SlateRenderer.h"
#include "Styling/WidgetStyle.h"
#include "Widgets/Text/TextLines.h"

#include <algorithm>

namespace
{
	const FSlateFontMeasure& GetFontMeasure()
	{
		checkf(FSlateApplicationBase::IsInitialized() && FSlateApplicationBase::Get().GetRenderer(), TEXT("Measuring text needs the Slate application and its renderer"));
		return FSlateApplicationBase::Get().GetRenderer()->GetFontMeasureService().Get();
	}
}

STextBlock::STextBlock()
	: TextStyle(FCoreStyle::Get().GetWidgetStyle<FTextBlockStyle>("NormalText"))
	, CachedAllottedWidth(0.0f)
{
}

void STextBlock::Construct(const FArguments& InArgs)
{
	SetTextStyle(InArgs._TextStyle);
	BoundText = InArgs._Text;
	Font = InArgs._Font;
	ColorAndOpacity = InArgs._ColorAndOpacity;
	Margin = InArgs._Margin;
	Justification = InArgs._Justification;
	AutoWrapText = InArgs._AutoWrapText;
	WrapTextAt = InArgs._WrapTextAt;
	MinDesiredWidth = InArgs._MinDesiredWidth;
}

void STextBlock::SetTextStyle(const FTextBlockStyle* InTextStyle)
{
	TextStyle = InTextStyle ? *InTextStyle : FCoreStyle::Get().GetWidgetStyle<FTextBlockStyle>("NormalText");
}

FSlateColor STextBlock::GetColorAndOpacity() const
{
	return ColorAndOpacity.IsSet() ? ColorAndOpacity.Get() : TextStyle.ColorAndOpacity;
}

FSlateFontInfo STextBlock::GetFont() const
{
	return Font.IsSet() ? Font.Get() : TextStyle.Font;
}

float STextBlock::GetWrappingWidth() const
{
	float WrappingWidth = WrapTextAt.Get(0.0f);
	if (AutoWrapText.Get(false) && CachedAllottedWidth >= 1.0f)
	{
		WrappingWidth = WrappingWidth >= 1.0f ? std::min(WrappingWidth, CachedAllottedWidth) : CachedAllottedWidth;
	}
	return std::max(0.0f, WrappingWidth);
}

FVector2D STextBlock::ComputeDesiredSize(float LayoutScaleMultiplier) const
{
	const FSlateFontMeasure& FontMeasure = GetFontMeasure();
	const FSlateFontInfo FontInfo = GetFont();
	const FMargin TextMargin = Margin.Get(FMargin());
	// Wrapping happens inside the margin; measuring happens at the scale the text is drawn at.
	const float WrappingWidth = GetWrappingWidth();
	const float TextWidth = WrappingWidth > 0.0f ? std::max(0.0f, WrappingWidth - TextMargin.GetTotalSpaceAlong<Orient_Horizontal>()) : 0.0f;
	const TArray<FTextLine> Lines = BreakTextIntoLines(GetText().ToString(), FontInfo, LayoutScaleMultiplier, TextWidth * LayoutScaleMultiplier, FontMeasure);
	float Width = 0.0f;
	for (const FTextLine& Line : Lines)
	{
		Width = std::max(Width, Line.Width);
	}
	const float LineHeight = FontMeasure.GetMaxCharacterHeight(FontInfo, LayoutScaleMultiplier);
	const FVector2D TextSize = FVector2D(Width, LineHeight * Lines.Num()) / static_cast<double>(LayoutScaleMultiplier);
	const FVector2D Desired = TextSize + TextMargin.GetDesiredSize();
	return FVector2D(std::max(static_cast<double>(MinDesiredWidth.Get(0.0f)), Desired.X), Desired.Y);
}

int32 STextBlock::OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	// Automatic wrapping follows the width the block is painted at, from the next layout on.
	CachedAllottedWidth = static_cast<float>(AllottedGeometry.GetLocalSize().X);

	const FSlateFontMeasure& FontMeasure = GetFontMeasure();
	const FSlateFontInfo FontInfo = GetFont();
	const FMargin TextMargin = Margin.Get(FMargin());
	const float Scale = AllottedGeometry.Scale;
	const float WrappingWidth = GetWrappingWidth();
	const float TextWidth = WrappingWidth > 0.0f ? std::max(0.0f, WrappingWidth - TextMargin.GetTotalSpaceAlong<Orient_Horizontal>()) : 0.0f;
	const TArray<FTextLine> Lines = BreakTextIntoLines(GetText().ToString(), FontInfo, Scale, TextWidth * Scale, FontMeasure);
	const float LineHeight = FontMeasure.GetMaxCharacterHeight(FontInfo, Scale) / Scale;

	const ESlateDrawEffect DrawEffects = ShouldBeEnabled(bParentEnabled) ? ESlateDrawEffect::None : ESlateDrawEffect::DisabledEffect;
	const FLinearColor TextColor = GetColorAndOpacity().GetColor(InWidgetStyle) * InWidgetStyle.GetColorAndOpacityTint();
	const bool bHasShadow = TextStyle.ShadowOffset != FVector2D::ZeroVector && TextStyle.ShadowColorAndOpacity.A > 0.0f;
	const FLinearColor ShadowColor = TextStyle.ShadowColorAndOpacity * InWidgetStyle.GetColorAndOpacityTint();
	const float AvailableWidth = static_cast<float>(AllottedGeometry.GetLocalSize().X) - TextMargin.GetTotalSpaceAlong<Orient_Horizontal>();
	const ETextJustify::Type LineJustification = Justification.Get(ETextJustify::Left);

	float LineTop = TextMargin.Top;
	for (const FTextLine& Line : Lines)
	{
		const float LineWidth = Line.Width / Scale;
		const float Slack = AvailableWidth - LineWidth;
		const float LineLeft = TextMargin.Left + (LineJustification == ETextJustify::Center ? Slack / 2.0f : LineJustification == ETextJustify::Right ? Slack
																																					  : 0.0f);
		if (bHasShadow)
		{
			FSlateDrawElement::MakeText(OutDrawElements, LayerId, AllottedGeometry.ToPaintGeometry(FVector2D(LineLeft, LineTop) + TextStyle.ShadowOffset, FVector2D(LineWidth, LineHeight)), Line.Text, FontInfo, DrawEffects, ShadowColor);
		}
		FSlateDrawElement::MakeText(OutDrawElements, LayerId, AllottedGeometry.ToPaintGeometry(FVector2D(LineLeft, LineTop), FVector2D(LineWidth, LineHeight)), Line.Text, FontInfo, DrawEffects, TextColor);
		LineTop += LineHeight;
	}
	return LayerId;
}
