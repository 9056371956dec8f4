#pragma once

#include "CoreMinimal.h"
#include "Framework/SlateDelegates.h"
#include "Layout/Children.h"
#include "Styling/AppStyle.h"
#include "Styling/ISlateStyle.h"
#include "Styling/SlateTypes.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SCompoundWidget.h"
#include "Widgets/SPanel.h"

class SScrollBar;
class SScrollPanel;

/** SScrollBox can scroll through an arbitrary number of widgets. */
class SLATE_API SScrollBox : public SCompoundWidget
{
public:
	/** A Slot that provides layout options for the contents of a scrollable box. */
	using FSlot = FBasicLayoutWidgetSlot;

	SLATE_BEGIN_ARGS(SScrollBox)
		: _Style(&FAppStyle::Get().GetWidgetStyle<FScrollBoxStyle>("ScrollBox"))
		, _ScrollBarStyle(&FAppStyle::Get().GetWidgetStyle<FScrollBarStyle>("ScrollBar"))
		, _Orientation(Orient_Vertical)
		, _ExternalScrollbar()
		, _ScrollBarVisibility(EVisibility::Visible)
		, _ScrollBarAlwaysVisible(false)
		, _ScrollBarThickness(FVector2D(_Style->BarThickness, _Style->BarThickness))
		, _ScrollBarPadding(2.0f)
		, _BackPadScrolling(false)
		, _FrontPadScrolling(false)
		, _OnUserScrolled()
		{
			_Clipping = EWidgetClipping::ClipToBounds;
		}
		SLATE_SLOT_ARGUMENT(FSlot, Slots)
		/** Style used to draw this scrollbox */
		SLATE_STYLE_ARGUMENT(FScrollBoxStyle, Style)
		/** Style used to draw this scrollbox's scrollbar */
		SLATE_STYLE_ARGUMENT(FScrollBarStyle, ScrollBarStyle)
		/** The direction that children will be stacked, and also the direction the box will scroll. */
		SLATE_ARGUMENT(EOrientation, Orientation)
		/** A scroll bar placed by the owner; the box then lays out no bar of its own. */
		SLATE_ARGUMENT(TSharedPtr<SScrollBar>, ExternalScrollbar)
		SLATE_ARGUMENT(EVisibility, ScrollBarVisibility)
		SLATE_ARGUMENT(bool, ScrollBarAlwaysVisible)
		SLATE_ARGUMENT(FVector2D, ScrollBarThickness)
		/** This accounts for total internal scroll bar padding; default 2.0f padding from the scroll bar itself is removed */
		SLATE_ARGUMENT(FMargin, ScrollBarPadding)
		/** Whether to back pad this scroll box, allowing user to scroll backward until child contents are no longer visible */
		SLATE_ARGUMENT(bool, BackPadScrolling)
		/** Whether to front pad this scroll box, allowing user to scroll forward until child contents are no longer visible */
		SLATE_ARGUMENT(bool, FrontPadScrolling)
		/** Called when the button is clicked */
		SLATE_EVENT(FOnUserScrolled, OnUserScrolled)
		SLATE_END_ARGS()

		SScrollBox();

		/** @return a new slot. Slots contain children for SScrollBox */
		static FSlot::FSlotArguments Slot();

		void Construct(const FArguments& InArgs);

		using FScopedWidgetSlotArguments = TPanelChildren<FSlot>::FScopedWidgetSlotArguments;
		/** Adds a slot to SScrollBox */
		FScopedWidgetSlotArguments AddSlot();

		/** Removes a slot at the specified location */
		void RemoveSlot(const TSharedRef<SWidget>& WidgetToRemove);

		/** Removes all children from the box */
		void ClearChildren();

		float GetScrollOffset() const;

		float GetViewFraction() const;

		float GetViewOffsetFraction() const;

		/** Gets the scroll offset of the bottom of the ScrollBox in Slate Units. */
		float GetScrollOffsetOfEnd() const;

		void SetScrollOffset(float NewScrollOffset);

		void ScrollToStart();

		void ScrollToEnd();

		EOrientation GetOrientation();

		void SetScrollBarVisibility(EVisibility InVisibility);

		void SetScrollBarAlwaysVisible(bool InAlwaysVisible);

		void SetScrollBarThickness(FVector2D InThickness);

		void SetScrollBarPadding(const FMargin& InPadding);

	public:
		// SWidget interface
		virtual void Tick(const FGeometry& AllottedGeometry, const double InCurrentTime, const float InDeltaTime) override;
		// End of SWidget interface

	private:
		/** Builds a default Scrollbar */
		TSharedPtr<SScrollBar> ConstructScrollBar();

		/** Constructs internal layout widgets for scrolling vertically using the existing ScrollPanel and ScrollBar. */
		void ConstructVerticalLayout();

		/** Constructs internal layout widgets for scrolling horizontally using the existing ScrollPanel and ScrollBar. */
		void ConstructHorizontalLayout();

		/** Gets the component of a vector in the direction of scrolling based on the Orientation property. */
		float GetScrollComponentFromVector(FVector2D Vector) const { return static_cast<float>(Orientation == Orient_Vertical ? Vector.Y : Vector.X); }

		/** The size of the scroll panel as it was last laid out. */
		FVector2D GetScrollPanelSize() const;

		/** The scrolling offset (in SlateUnits) that the user asked for */
		float DesiredScrollOffset;

		/** The scroll bar moved the content to this fraction of its length. */
		void ScrollBar_OnUserScrolled(float InScrollOffsetFraction);

		/** Get the visibility of the shadows before and after the scrolled content. */
		FSlateColor GetStartShadowOpacity() const;
		FSlateColor GetEndShadowOpacity() const;

		/** Padding to the scrollbox */
		FMargin ScrollBarSlotPadding;

		/** The scroll bar's slot, beside the content. */
		SHorizontalBox::FSlot* VerticalScrollBarSlot;
		SVerticalBox::FSlot* HorizontalScrollBarSlot;

	protected:
		/** The panel which stacks the child slots */
		TSharedPtr<class SScrollPanel> ScrollPanel;

		/** The scrollbar which controls scrolling for the scrollbox. */
		TSharedPtr<SScrollBar> ScrollBar;

		/** Whether to back pad this scroll box, allowing user to scroll backward until child contents are no longer visible */
		bool BackPadScrolling;

		/** Whether to front pad this scroll box, allowing user to scroll forward until child contents are no longer visible */
		bool FrontPadScrolling;

		/** Fired when the user scrolls the scrollbox */
		FOnUserScrolled OnUserScrolled;

		/** The panel's orientation; cached to avoid virtual function calls */
		EOrientation Orientation;

		/** Style resource for the scrollbox */
		const FScrollBoxStyle* Style;

		/** Style resource for the scrollbar */
		const FScrollBarStyle* ScrollBarStyle;

		/** Cached geometry for use with the active timer */
		FGeometry CachedGeometry;

		/** Whether the content scrolls to its end at the next tick. */
		bool bScrollToEnd;

		/** Whether the scroll bar belongs to the owner rather than to this box's layout. */
		bool bScrollBarIsExternal;
};

/** The panel that stacks a scroll box's slots and moves them by the scroll offset. */
class SScrollPanel : public SPanel
{
public:
	SLATE_BEGIN_ARGS(SScrollPanel)
	{
		_Visibility = EVisibility::SelfHitTestInvisible;
	}
	SLATE_ARGUMENT(EOrientation, Orientation)
	SLATE_ARGUMENT(bool, BackPadScrolling)
	SLATE_ARGUMENT(bool, FrontPadScrolling)
	SLATE_END_ARGS()

	SScrollPanel()
		: Children(this)
	{
	}

	void Construct(const FArguments& InArgs, TArray<SScrollBox::FSlot::FSlotArguments> InSlots);

public:
	EOrientation GetOrientation() { return Orientation; }

	void SetOrientation(EOrientation InOrientation) { Orientation = InOrientation; }

	virtual void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;

	virtual FChildren* GetChildren() override { return &Children; }

	float PhysicalOffset;
	TPanelChildren<SScrollBox::FSlot> Children;

protected:
	// Begin SWidget overrides.
	virtual FVector2D ComputeDesiredSize(float) const override;
	// End SWidget overrides.

private:
	/** Places one slot along the panel; @return where the next one starts. */
	float ArrangeChildVerticalAndReturnOffset(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren, const SScrollBox::FSlot& ThisSlot, float CurChildOffset) const;
	float ArrangeChildHorizontalAndReturnOffset(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren, const SScrollBox::FSlot& ThisSlot, float CurChildOffset) const;

private:
	EOrientation Orientation;
	bool BackPadScrolling;
	bool FrontPadScrolling;
};
