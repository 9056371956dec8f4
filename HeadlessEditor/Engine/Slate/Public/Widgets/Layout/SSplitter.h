#pragma once

#include "CoreMinimal.h"
#include "Layout/Children.h"
#include "Misc/Attribute.h"
#include "SlotBase.h"
#include "Styling/CoreStyle.h"
#include "Styling/ISlateStyle.h"
#include "Styling/SlateTypes.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SPanel.h"

class FArrangedChildren;
class FPaintArgs;
class FSlateWindowElementList;

/**
 * Lays its children out side by side (or one above the other), each taking a fraction of the room
 * or the size of its content, with a thin handle between neighbours. The headless editor has no
 * mouse to drag the handles, so the slots keep the sizes their values give them.
 */
class SLATE_API SSplitter : public SPanel
{
public:
	enum ESizeRule
	{
		/** The slot takes the size its content asks for and cannot be resized. */
		SizeToContent,
		/** The slot takes a share of the room in proportion to its value. */
		FractionOfParent
	};

	class SLATE_API FSlot : public TSlotBase<FSlot>
	{
	public:
		FSlot()
			: TSlotBase<FSlot>()
			, SizingRule(FractionOfParent)
			, SizeValue(1)
			, MinSizeValue(0)
		{
		}

		SLATE_SLOT_BEGIN_ARGS(FSlot, TSlotBase<FSlot>)
		SLATE_ATTRIBUTE(ESizeRule, SizeRule)
		SLATE_ATTRIBUTE(float, Value)
		SLATE_ATTRIBUTE(float, MinSize)
		SLATE_SLOT_END_ARGS()

		void Construct(const FChildren& SlotOwner, FSlotArguments&& InArgs);

		float GetSizeValue() const { return SizeValue.Get(); }
		float GetMinSize() const { return MinSizeValue.Get(0.f); }
		ESizeRule GetSizingRule() const { return SizingRule.Get(); }

	private:
		TAttribute<ESizeRule> SizingRule;
		TAttribute<float> SizeValue;
		TAttribute<float> MinSizeValue;
	};

	static FSlot::FSlotArguments Slot();

	using FScopedWidgetSlotArguments = TPanelChildren<FSlot>::FScopedWidgetSlotArguments;
	FScopedWidgetSlotArguments AddSlot(int32 AtIndex = INDEX_NONE);

	SLATE_BEGIN_ARGS(SSplitter)
		: _Style(&FCoreStyle::Get().GetWidgetStyle<FSplitterStyle>("Splitter"))
		, _Orientation(Orient_Horizontal)
		, _PhysicalSplitterHandleSize(5.0f)
		, _MinimumSlotHeight(20.0f)
		, _HighlightedHandleIndex(INDEX_NONE)
		{
		}
		SLATE_SLOT_ARGUMENT(FSlot, Slots)
		/** How the handles are drawn */
		SLATE_STYLE_ARGUMENT(FSplitterStyle, Style)
		SLATE_ARGUMENT(EOrientation, Orientation)
		/** The thickness of the handle drawn between slots */
		SLATE_ARGUMENT(float, PhysicalSplitterHandleSize)
		/** The smallest size a fraction slot takes when there is room for it */
		SLATE_ARGUMENT(float, MinimumSlotHeight)
		/** The handle drawn highlighted, as the one under the mouse is */
		SLATE_ATTRIBUTE(int32, HighlightedHandleIndex)
		SLATE_END_ARGS()

		SSplitter();
		void Construct(const FArguments& InArgs);

		virtual void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;
		/** Paints the children, then the handles between them above them. */
		virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;
		virtual FChildren* GetChildren() override { return &Children; }

	protected:
		/** The children's sizes added up along the splitter, with room for the handles. */
		virtual FVector2D ComputeDesiredSize(float) const override;

	private:
		/** Each slot's size along the splitter: content sizes first, then the fractions of the rest, minimum sizes taken from the slots before. */
		TArray<float> ComputeSlotSizes(float AllottedLength) const;
		float ClampChild(const FSlot& ChildSlot, float ProposedSize) const;
		bool IsSlotCollapsed(const FSlot& Slot) const;

		TPanelChildren<FSlot> Children;
		const FSplitterStyle* Style;
		EOrientation Orientation;
		float PhysicalSplitterHandleSize;
		float MinSplitterChildLength;
		TAttribute<int32> HighlightedHandleIndex;
};
