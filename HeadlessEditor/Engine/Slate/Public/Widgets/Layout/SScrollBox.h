#pragma once

#include "CoreMinimal.h"
#include "Layout/Children.h"
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
		: _Style(&FScrollBoxStyle::GetDefault())
		, _Orientation(Orient_Vertical)
		, _ScrollBarVisibility(EVisibility::Visible)
		, _ScrollBarAlwaysVisible(false)
		, _ScrollBarThickness(FVector2D(9.0, 9.0))
		{
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
		EOrientation GetOrientation() const { return Orientation; }

		/** The engine nests the slots in a scroll panel beside a scroll bar; here the slots are the children. */
		virtual FChildren* GetChildren() override { return &Children; }

	private:
		TPanelChildren<FSlot> Children;
		EOrientation Orientation;
};
