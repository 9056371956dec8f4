#pragma once

#include "CoreMinimal.h"
#include "Layout/BasicLayoutWidgetSlot.h"
#include "Layout/Children.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SPanel.h"

/** A grid whose cells are all the same size: the largest child's, or the minimum given. */
class SLATE_API SUniformGridPanel : public SPanel
{
public:
	/** A cell of the grid, at a column and row. */
	class FSlot : public TBasicLayoutWidgetSlot<FSlot>
	{
	public:
		FSlot(int32 InColumn, int32 InRow)
			: Column(InColumn)
			, Row(InRow)
		{
		}

		SLATE_SLOT_BEGIN_ARGS(FSlot, TBasicLayoutWidgetSlot<FSlot>)
		SLATE_SLOT_END_ARGS()

		void Construct(const FChildren& SlotOwner, FSlotArguments&& InArgs) { TBasicLayoutWidgetSlot<FSlot>::Construct(SlotOwner, MoveTemp(InArgs)); }

		int32 GetColumn() const { return Column; }
		int32 GetRow() const { return Row; }

	private:
		int32 Column;
		int32 Row;
	};

	using FScopedWidgetSlotArguments = TPanelChildren<FSlot>::FScopedWidgetSlotArguments;

	SUniformGridPanel();

	static FSlot::FSlotArguments Slot(int32 Column, int32 Row);

	SLATE_BEGIN_ARGS(SUniformGridPanel)
		: _SlotPadding(FMargin(0.0f))
		, _MinDesiredSlotWidth(0.0f)
		, _MinDesiredSlotHeight(0.0f)
		{
			_Visibility = EVisibility::SelfHitTestInvisible;
		}
		SLATE_SLOT_ARGUMENT(FSlot, Slots)
		/** Padding given to each slot */
		SLATE_ATTRIBUTE(FMargin, SlotPadding)
		/** The minimum desired width of the slots */
		SLATE_ATTRIBUTE(float, MinDesiredSlotWidth)
		/** The minimum desired height of the slots */
		SLATE_ATTRIBUTE(float, MinDesiredSlotHeight)
		SLATE_END_ARGS()

		void Construct(const FArguments& InArgs);

		virtual void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;
		virtual FChildren* GetChildren() override { return &Children; }

		/** Adds a cell at a column and row. */
		FScopedWidgetSlotArguments AddSlot(int32 Column, int32 Row);

	protected:
		virtual FVector2D ComputeDesiredSize(float) const override;

	private:
		TPanelChildren<FSlot> Children;
		TAttribute<FMargin> SlotPadding;
		TAttribute<float> MinDesiredSlotWidth;
		TAttribute<float> MinDesiredSlotHeight;
		/** The grid's extent, found while sizing it. */
		mutable int32 NumColumns = 0;
		mutable int32 NumRows = 0;
};
