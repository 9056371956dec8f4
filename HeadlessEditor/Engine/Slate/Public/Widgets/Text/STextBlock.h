#pragma once

#include "CoreMinimal.h"
#include "Fonts/SlateFontInfo.h"
#include "Framework/Text/TextLayout.h"
#include "Styling/CoreStyle.h"
#include "Styling/ISlateStyle.h"
#include "Styling/SlateColor.h"
#include "Styling/SlateTypes.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SLeafWidget.h"

/** A simple static text widget. */
class SLATE_API STextBlock : public SLeafWidget
{
public:
	SLATE_BEGIN_ARGS(STextBlock)
		: _Text()
		, _TextStyle(&FCoreStyle::Get().GetWidgetStyle<FTextBlockStyle>("NormalText"))
		, _Font()
		, _ColorAndOpacity()
		, _Margin()
		, _Justification(ETextJustify::Left)
		, _AutoWrapText(false)
		, _WrapTextAt(0.0f)
		, _MinDesiredWidth(0.0f)
		{
		}
		/** The text displayed in this text block */
		SLATE_ATTRIBUTE(FText, Text)
		/** Pointer to a style of the text block, which dictates the font, color, and shadow options. */
		SLATE_STYLE_ARGUMENT(FTextBlockStyle, TextStyle)
		/** Sets the font used to draw the text */
		SLATE_ATTRIBUTE(FSlateFontInfo, Font)
		/** Text color and opacity */
		SLATE_ATTRIBUTE(FSlateColor, ColorAndOpacity)
		/** The amount of blank space left around the edges of text area. */
		SLATE_ATTRIBUTE(FMargin, Margin)
		/** How the text should be aligned with the margin. */
		SLATE_ATTRIBUTE(ETextJustify::Type, Justification)
		/** Whether to wrap text automatically based on the widget's computed horizontal space. */
		SLATE_ATTRIBUTE(bool, AutoWrapText)
		/** Whether text wraps onto a new line when it's length exceeds this width; if this value is zero or negative, no wrapping occurs. */
		SLATE_ATTRIBUTE(float, WrapTextAt)
		/** Minimum width that a text block should be */
		SLATE_ATTRIBUTE(float, MinDesiredWidth)
		SLATE_END_ARGS()

		STextBlock();
		void Construct(const FArguments& InArgs);

		/** Gets the text assigned to this text block; a bound text is read from its getter each call. */
		const FText& GetText() const { return BoundText.Get(); }

		void SetText(TAttribute<FText> InText) { BoundText = MoveTemp(InText); }
		void SetFont(TAttribute<FSlateFontInfo> InFont) { Font = MoveTemp(InFont); }
		void SetColorAndOpacity(TAttribute<FSlateColor> InColorAndOpacity) { ColorAndOpacity = MoveTemp(InColorAndOpacity); }
		void SetTextStyle(const FTextBlockStyle* InTextStyle);
		void SetAutoWrapText(TAttribute<bool> InAutoWrapText) { AutoWrapText = MoveTemp(InAutoWrapText); }
		void SetWrapTextAt(TAttribute<float> InWrapTextAt) { WrapTextAt = MoveTemp(InWrapTextAt); }
		void SetMargin(TAttribute<FMargin> InMargin) { Margin = MoveTemp(InMargin); }
		void SetJustification(TAttribute<ETextJustify::Type> InJustification) { Justification = MoveTemp(InJustification); }
		void SetMinDesiredWidth(TAttribute<float> InMinDesiredWidth) { MinDesiredWidth = MoveTemp(InMinDesiredWidth); }

		/** Draws each line of text where the margin and the justification put it, in the block's colour. */
		virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;
		/** The text's lines, each as high as the font, plus the margin; at least the minimum width. */
		virtual FVector2D ComputeDesiredSize(float) const override;

	private:
		/** The colour to draw with: the one set on the block, else the style's. */
		FSlateColor GetColorAndOpacity() const;
		/** The font to draw with: the one set on the block, else the style's. */
		FSlateFontInfo GetFont() const;
		/** The width lines wrap at: WrapTextAt, or the width last allotted when wrapping automatically, whichever is smaller. */
		float GetWrappingWidth() const;

		TAttribute<FText> BoundText;
		FTextBlockStyle TextStyle;
		TAttribute<FSlateFontInfo> Font;
		TAttribute<FSlateColor> ColorAndOpacity;
		TAttribute<FMargin> Margin;
		TAttribute<ETextJustify::Type> Justification;
		TAttribute<bool> AutoWrapText;
		TAttribute<float> WrapTextAt;
		TAttribute<float> MinDesiredWidth;
		/** The width the block was last painted at, which automatic wrapping follows. */
		mutable float CachedAllottedWidth;
};
