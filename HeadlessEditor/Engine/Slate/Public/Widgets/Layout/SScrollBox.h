#pragma once

#include "CoreMinimal.h"
#include "Layout/Children.h"
#include "Styling/AppStyle.h"
#include "Styling/ISlateStyle.h"
#include "Styling/SlateTypes.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

/** A box whose slots scroll when they do not fit. */
class SLATE_API SScrollBox : public SCompoundWidget
{
public:
	using FSlot = FBasicLayoutWidgetSlot;
	using FScopedWidgetSlotArguments = TPanelChildren<FSlot>::FScopedWidgetSlotArguments;

	static FSlot::FSlotArguments Slot();

	SLATE_BEGIN_ARGS(SScrollBox)
		: _Style(&FAppStyle::Get().GetWidgetStyle<FScrollBoxStyle>("ScrollBox"))
		, _Orientation(Orient_Vertical)
		, _ScrollBarVisibility(EVisibility::Visible)
		, _ScrollBarAlwaysVisible(false)
		, _ScrollBarThickness(FVector2D(9.0, 9.0))
		{
			_Clipping = EWidgetClipping::ClipToBounds;
		}
		SLATE_SLOT_ARGUMENT(FSlot, Slots)
		SLATE_STYLE_ARGUMENT(FScrollBoxStyle, Style)
		SLATE_ARGUMENT(EOrientation, Orientation)
		SLATE_ARGUMENT(EVisibility, ScrollBarVisibility)
		SLATE_ARGUMENT(bool, ScrollBarAlwaysVisible)
		SLATE_ARGUMENT(FVector2D, ScrollBarThickness)
		SLATE_END_ARGS()

		SScrollBox();
		void Construct(const FArguments& InArgs);

		FScopedWidgetSlotArguments AddSlot();
		void ClearChildren() { Children.Empty(); }
		EOrientation GetOrientation() { return Orientation; }

		/** The engine nests the slots in a scroll panel beside a scroll bar; here the slots are the children. */
		virtual FChildren* GetChildren() override { return &Children; }
		virtual void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;
		/** Draws the slots, cut to the box, and the scroll bar when the content is longer than the box. */
		virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;

	protected:
		/** The slots stacked along the box, each at its desired size. */
		virtual FVector2D ComputeDesiredSize(float) const override;

	private:
		/** Whether the content is longer than the box, so that the scroll bar shows. */
		bool IsScrollBarVisible() const;
		/** The length of the content along the box. */
		float GetContentLength() const;

		TPanelChildren<FSlot> Children;
		EOrientation Orientation;
		FVector2D ScrollBarThickness;
		EVisibility ScrollBarVisibility;
		bool bScrollBarAlwaysVisible;
		/** The length the box had when it was last arranged: the scroll bar shows when the content is longer. */
		mutable float LastViewLength;
};
