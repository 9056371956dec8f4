#pragma once

#include "CoreMinimal.h"
#include "Layout/Children.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SPanel.h"

/** A panel whose children lie on top of each other, later slots (higher z-order) in front. */
class SLATECORE_API SOverlay : public SPanel
{
public:
	class FOverlaySlot : public TBasicLayoutWidgetSlot<FOverlaySlot>
	{
	public:
		FOverlaySlot(int32 InZOrder)
			: ZOrder(InZOrder)
		{
		}

		SLATE_SLOT_BEGIN_ARGS(FOverlaySlot, TBasicLayoutWidgetSlot<FOverlaySlot>)
		SLATE_SLOT_END_ARGS()

		int32 GetZOrder() const { return ZOrder; }

	private:
		friend SOverlay;
		int32 ZOrder;
	};

	using FScopedWidgetSlotArguments = TPanelChildren<FOverlaySlot>::FScopedWidgetSlotArguments;

	static FOverlaySlot::FSlotArguments Slot();

	SLATE_BEGIN_ARGS(SOverlay)
	{
		_Visibility = EVisibility::SelfHitTestInvisible;
	}
	SLATE_SLOT_ARGUMENT(SOverlay::FOverlaySlot, Slots)
	SLATE_END_ARGS()

	SOverlay();
	void Construct(const FArguments& InArgs);

	/** Adds a slot at the given z-order; INDEX_NONE puts it in front of all others. */
	FScopedWidgetSlotArguments AddSlot(int32 ZOrder = INDEX_NONE);
	int32 GetNumWidgets() const { return Children.Num(); }
	/** Removes the slot at the given z-order; INDEX_NONE removes the front one. */
	void RemoveSlot(int32 ZOrder = INDEX_NONE);
	void ClearChildren() { Children.Empty(); }

	virtual FChildren* GetChildren() override { return &Children; }
	virtual void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;
	/** Each layer is drawn above everything the layers before it drew. */
	virtual int32 OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const override;

protected:
	/** The largest of the children's desired sizes, each with its slot's padding. */
	virtual FVector2D ComputeDesiredSize(float) const override;

private:
	TPanelChildren<FOverlaySlot> Children;
};
