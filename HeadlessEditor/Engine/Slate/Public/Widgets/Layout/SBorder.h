#pragma once

#include "CoreMinimal.h"
#include "Styling/CoreStyle.h"
#include "Styling/ISlateStyle.h"
#include "Styling/SlateBrush.h"
#include "Styling/SlateColor.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

/** A container that draws a brush behind its single child, inside a padding. */
class SLATE_API SBorder : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SBorder)
		: _Content()
		, _HAlign(HAlign_Fill)
		, _VAlign(VAlign_Fill)
		, _Padding(FMargin(2.0f))
		, _BorderImage(FCoreStyle::Get().GetBrush("Border"))
		, _ContentScale(FVector2D(1, 1))
		, _DesiredSizeScale(FVector2D(1, 1))
		, _ColorAndOpacity(FLinearColor(1, 1, 1, 1))
		, _BorderBackgroundColor(FLinearColor::White)
		, _ForegroundColor(FSlateColor::UseForeground())
		, _ShowEffectWhenDisabled(true)
		{
		}
		SLATE_DEFAULT_SLOT(FArguments, Content)
		SLATE_ARGUMENT(EHorizontalAlignment, HAlign)
		SLATE_ARGUMENT(EVerticalAlignment, VAlign)
		SLATE_ATTRIBUTE(FMargin, Padding)
		SLATE_ATTRIBUTE(const FSlateBrush*, BorderImage)
		SLATE_ATTRIBUTE(FVector2D, ContentScale)
		SLATE_ATTRIBUTE(FVector2D, DesiredSizeScale)
		SLATE_ATTRIBUTE(FLinearColor, ColorAndOpacity)
		SLATE_ATTRIBUTE(FSlateColor, BorderBackgroundColor)
		SLATE_ATTRIBUTE(FSlateColor, ForegroundColor)
		SLATE_ATTRIBUTE(bool, ShowEffectWhenDisabled)
		SLATE_END_ARGS()

		SBorder();
		void Construct(const FArguments& InArgs);

		/** Sets the content of this border. */
		virtual void SetContent(TSharedRef<SWidget> InContent);
		/** Gets the content of this border. */
		const TSharedRef<SWidget>& GetContent() const;
		/** Clears the content of this border. */
		void ClearContent();

		void SetBorderBackgroundColor(TAttribute<FSlateColor> InColorAndOpacity) { BorderBackgroundColorAttribute = MoveTemp(InColorAndOpacity); }
		FSlateColor GetBorderBackgroundColor() const { return BorderBackgroundColorAttribute.Get(); }
		void SetDesiredSizeScale(TAttribute<FVector2D> InDesiredSizeScale) { DesiredSizeScaleAttribute = MoveTemp(InDesiredSizeScale); }
		void SetHAlign(EHorizontalAlignment HAlign) { ChildSlot.SetHorizontalAlignment(HAlign); }
		void SetVAlign(EVerticalAlignment VAlign) { ChildSlot.SetVerticalAlignment(VAlign); }
		void SetPadding(TAttribute<FMargin> InPadding) { ChildSlot.SetPadding(MoveTemp(InPadding)); }
		void SetShowEffectWhenDisabled(TAttribute<bool> InShowEffectWhenDisabled) { ShowDisabledEffectAttribute = MoveTemp(InShowEffectWhenDisabled); }
		void SetBorderImage(TAttribute<const FSlateBrush*> InBorderImage) { BorderImageAttribute = MoveTemp(InBorderImage); }
		const FSlateBrush* GetBorderImage() const { return BorderImageAttribute.Get(); }

	public:
		/** Draws the border's brush under the content, faded and greyed when disabled if it shows the effect. */
		virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;

	protected:
		/** The content's size with the padding, scaled by the desired size scale. */
		virtual FVector2D ComputeDesiredSize(float) const override;

		bool GetShowDisabledEffect() const { return ShowDisabledEffectAttribute.Get(); }
		FVector2D GetDesiredSizeScale() const { return DesiredSizeScaleAttribute.Get(); }

	private:
		TAttribute<const FSlateBrush*> BorderImageAttribute;
		TAttribute<FSlateColor> BorderBackgroundColorAttribute;
		TAttribute<FVector2D> DesiredSizeScaleAttribute;
		TAttribute<bool> ShowDisabledEffectAttribute;
};
