#pragma once

#include "CoreMinimal.h"
#include "Layout/Children.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SPanel.h"

/** A panel that wraps its children onto new lines when they do not fit. */
class SLATE_API SWrapBox : public SPanel
{
public:
	class FSlot : public TBasicLayoutWidgetSlot<FSlot>
	{
	public:
		SLATE_SLOT_BEGIN_ARGS(FSlot, TBasicLayoutWidgetSlot<FSlot>)
		FSlotArguments& FillLineWhenSizeLessThan(TOptional<float> InFillLineWhenSizeLessThan)
		{
			_FillLineWhenSizeLessThan = InFillLineWhenSizeLessThan;
			return Me();
		}
		FSlotArguments& FillEmptySpace(TOptional<bool> InFillEmptySpace)
		{
			_FillEmptySpace = InFillEmptySpace;
			return Me();
		}
		FSlotArguments& ForceNewLine(TOptional<bool> InForceNewLine)
		{
			_ForceNewLine = InForceNewLine;
			return Me();
		}
		TOptional<float> _FillLineWhenSizeLessThan;
		TOptional<bool> _FillEmptySpace;
		TOptional<bool> _ForceNewLine;
		SLATE_SLOT_END_ARGS()

		void Construct(const FChildren& SlotOwner, FSlotArguments&& InArgs);

		/** Below this wrap size, the slot takes a line of its own and fills it. */
		TOptional<float> GetFillLineWhenSizeLessThan() const { return SlotFillLineWhenSizeLessThan; }
		void SetFillLineWhenSizeLessThan(TOptional<float> InFillLineWhenSizeLessThan) { SlotFillLineWhenSizeLessThan = InFillLineWhenSizeLessThan; }
		/** The last slot of a line fills what is left of it. */
		bool GetFillEmptySpace() const { return bSlotFillEmptySpace; }
		void SetFillEmptySpace(bool bInFillEmptySpace) { bSlotFillEmptySpace = bInFillEmptySpace; }
		/** The slot starts a new line. */
		bool GetForceNewLine() const { return bSlotForceNewLine; }
		void SetForceNewLine(bool bInForceNewLine) { bSlotForceNewLine = bInForceNewLine; }

	private:
		TOptional<float> SlotFillLineWhenSizeLessThan;
		bool bSlotFillEmptySpace = false;
		bool bSlotForceNewLine = false;
	};

	using FScopedWidgetSlotArguments = TPanelChildren<FSlot>::FScopedWidgetSlotArguments;

	static FSlot::FSlotArguments Slot();

	SLATE_BEGIN_ARGS(SWrapBox)
		: _PreferredSize(100.0f)
		, _HAlign(HAlign_Left)
		, _InnerSlotPadding(FVector2D(0.0, 0.0))
		, _UseAllottedSize(false)
		, _Orientation(Orient_Horizontal)
		{
			_Visibility = EVisibility::SelfHitTestInvisible;
		}
		SLATE_SLOT_ARGUMENT(FSlot, Slots)
		/** The preferred size, if not set will fill the space */
		SLATE_ATTRIBUTE(float, PreferredSize)
		/** The alignment of each line of wrapped content. */
		SLATE_ATTRIBUTE(EHorizontalAlignment, HAlign)
		/** The inner slot padding goes between slots sharing borders */
		SLATE_ARGUMENT(FVector2D, InnerSlotPadding)
		/** if true, the PreferredSize will always match the room available to the SWrapBox  */
		SLATE_ARGUMENT(bool, UseAllottedSize)
		/** Determines if the wrap box needs to arrange the slots left-to-right or top-to-bottom.*/
		SLATE_ARGUMENT(EOrientation, Orientation)
		SLATE_END_ARGS()

		SWrapBox();
		void Construct(const FArguments& InArgs);

		FScopedWidgetSlotArguments AddSlot();
		int32 RemoveSlot(const TSharedRef<SWidget>& SlotWidget);
		void ClearChildren() { Slots.Empty(); }
		void SetInnerSlotPadding(FVector2D InInnerSlotPadding) { InnerSlotPadding = InInnerSlotPadding; }
		void SetWrapSize(TAttribute<float> InWrapSize) { PreferredSize = MoveTemp(InWrapSize); }
		void SetUseAllottedSize(bool bInUseAllottedSize);
		void SetOrientation(EOrientation InOrientation) { Orientation = InOrientation; }
		void SetHorizontalAlignment(TAttribute<EHorizontalAlignment> InHAlignment) { HAlign = MoveTemp(InHAlignment); }

		virtual void Tick(const FGeometry& AllottedGeometry, const double InCurrentTime, const float InDeltaTime) override;
		virtual void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;
		virtual FChildren* GetChildren() override { return &Slots; }

	protected:
		/** The extent of the slots as they wrap at the preferred size. */
		virtual FVector2D ComputeDesiredSize(float) const override;

	private:
		/** Lays the slots out in lines no longer than the preferred size. */
		class FChildArranger;

		TPanelChildren<FSlot> Slots;
		TAttribute<float> PreferredSize;
		TAttribute<EHorizontalAlignment> HAlign;
		FVector2D InnerSlotPadding;
		bool bUseAllottedSize;
		EOrientation Orientation;
};
