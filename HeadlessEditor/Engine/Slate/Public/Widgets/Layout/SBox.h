#pragma once

#include "CoreMinimal.h"
#include "Layout/Children.h"
#include "Types/SlateStructs.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SPanel.h"

/** A panel with one child whose size can be overridden or bounded. */
class SLATE_API SBox : public SPanel
{
public:
	SLATE_BEGIN_ARGS(SBox)
		: _HAlign(HAlign_Fill)
		, _VAlign(VAlign_Fill)
		, _Padding(0.0f)
		, _Content()
		, _WidthOverride(FOptionalSize())
		, _HeightOverride(FOptionalSize())
		, _MinDesiredWidth(FOptionalSize())
		, _MinDesiredHeight(FOptionalSize())
		, _MaxDesiredWidth(FOptionalSize())
		, _MaxDesiredHeight(FOptionalSize())
		{
			_Visibility = EVisibility::SelfHitTestInvisible;
		}
		SLATE_ARGUMENT(EHorizontalAlignment, HAlign)
		SLATE_ARGUMENT(EVerticalAlignment, VAlign)
		SLATE_ATTRIBUTE(FMargin, Padding)
		SLATE_DEFAULT_SLOT(FArguments, Content)
		SLATE_ATTRIBUTE(FOptionalSize, WidthOverride)
		SLATE_ATTRIBUTE(FOptionalSize, HeightOverride)
		SLATE_ATTRIBUTE(FOptionalSize, MinDesiredWidth)
		SLATE_ATTRIBUTE(FOptionalSize, MinDesiredHeight)
		SLATE_ATTRIBUTE(FOptionalSize, MaxDesiredWidth)
		SLATE_ATTRIBUTE(FOptionalSize, MaxDesiredHeight)
		SLATE_ATTRIBUTE(FOptionalSize, MinAspectRatio)
		SLATE_ATTRIBUTE(FOptionalSize, MaxAspectRatio)
		SLATE_END_ARGS()

		SBox();
		void Construct(const FArguments& InArgs);

		virtual FChildren* GetChildren() override { return &ChildSlot; }
		virtual void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;

		void SetContent(const TSharedRef<SWidget>& InContent) { ChildSlot[InContent]; }
		void SetHAlign(EHorizontalAlignment HAlign) { ChildSlot.SetHorizontalAlignment(HAlign); }
		void SetVAlign(EVerticalAlignment VAlign) { ChildSlot.SetVerticalAlignment(VAlign); }
		void SetPadding(TAttribute<FMargin> InPadding) { ChildSlot.SetPadding(MoveTemp(InPadding)); }
		void SetWidthOverride(TAttribute<FOptionalSize> InWidthOverride) { WidthOverride = MoveTemp(InWidthOverride); }
		void SetHeightOverride(TAttribute<FOptionalSize> InHeightOverride) { HeightOverride = MoveTemp(InHeightOverride); }
		void SetMinDesiredWidth(TAttribute<FOptionalSize> InMinDesiredWidth) { MinDesiredWidth = MoveTemp(InMinDesiredWidth); }
		void SetMinDesiredHeight(TAttribute<FOptionalSize> InMinDesiredHeight) { MinDesiredHeight = MoveTemp(InMinDesiredHeight); }
		void SetMaxDesiredWidth(TAttribute<FOptionalSize> InMaxDesiredWidth) { MaxDesiredWidth = MoveTemp(InMaxDesiredWidth); }
		void SetMaxDesiredHeight(TAttribute<FOptionalSize> InMaxDesiredHeight) { MaxDesiredHeight = MoveTemp(InMaxDesiredHeight); }

	protected:
		/** The overrides where set; otherwise the content's size with padding, kept within the min and max. */
		virtual FVector2D ComputeDesiredSize(float) const override;

		TSingleWidgetChildrenWithBasicLayoutSlot<EInvalidateWidgetReason::None> ChildSlot;

	private:
		float ComputeDesiredWidth() const;
		float ComputeDesiredHeight() const;

		TAttribute<FOptionalSize> WidthOverride;
		TAttribute<FOptionalSize> HeightOverride;
		TAttribute<FOptionalSize> MinDesiredWidth;
		TAttribute<FOptionalSize> MinDesiredHeight;
		TAttribute<FOptionalSize> MaxDesiredWidth;
		TAttribute<FOptionalSize> MaxDesiredHeight;
		TAttribute<FOptionalSize> MinAspectRatio;
		TAttribute<FOptionalSize> MaxAspectRatio;
};
