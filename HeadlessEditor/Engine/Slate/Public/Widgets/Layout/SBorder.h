#pragma once

#include "CoreMinimal.h"
#include "Styling/SlateBrush.h"
#include "Styling/SlateColor.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

/** A container that draws a brush behind its single child. */
class SLATE_API SBorder : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SBorder)
		: _Content()
		, _HAlign(HAlign_Fill)
		, _VAlign(VAlign_Fill)
		, _Padding(FMargin(2.0f))
		, _BorderImage(nullptr)
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
		SLATE_ATTRIBUTE(FLinearColor, ColorAndOpacity)
		SLATE_ATTRIBUTE(FSlateColor, BorderBackgroundColor)
		SLATE_ATTRIBUTE(FSlateColor, ForegroundColor)
		SLATE_ATTRIBUTE(bool, ShowEffectWhenDisabled)
		SLATE_END_ARGS()

		SBorder();
		void Construct(const FArguments& InArgs);

		/** Sets the content of this border. */
		void SetContent(TSharedRef<SWidget> InContent);
		/** Gets the content of this border. */
		const TSharedRef<SWidget>& GetContent() const;
		/** Clears the content of this border. */
		void ClearContent();

		void SetBorderImage(TAttribute<const FSlateBrush*> InBorderImage) { BorderImage = MoveTemp(InBorderImage); }
		void SetBorderBackgroundColor(TAttribute<FSlateColor> InColorAndOpacity) { BorderBackgroundColor = MoveTemp(InColorAndOpacity); }
		void SetPadding(TAttribute<FMargin> InPadding) { ChildSlot.SetPadding(MoveTemp(InPadding)); }
		void SetHAlign(EHorizontalAlignment HAlign) { ChildSlot.SetHorizontalAlignment(HAlign); }
		void SetVAlign(EVerticalAlignment VAlign) { ChildSlot.SetVerticalAlignment(VAlign); }

	protected:
		TAttribute<const FSlateBrush*> BorderImage;
		TAttribute<FSlateColor> BorderBackgroundColor;
};
