#pragma once

#include "CoreMinimal.h"
#include "Framework/SlateDelegates.h"
#include "Styling/AppStyle.h"
#include "Styling/ISlateStyle.h"
#include "Styling/SlateTypes.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/Layout/SBorder.h"

class SImage;
class SScrollBarTrack;
class SSpacer;

/** A bar beside scrolled content: its thumb shows which part of the content is in view. */
class SLATE_API SScrollBar : public SBorder
{
public:
	SLATE_BEGIN_ARGS(SScrollBar)
		: _Style(&FAppStyle::Get().GetWidgetStyle<FScrollBarStyle>("Scrollbar"))
		, _OnUserScrolled()
		, _AlwaysShowScrollbar(false)
		, _AlwaysShowScrollbarTrack(true)
		, _Orientation(Orient_Vertical)
		, _Thickness()
		, _Padding(2.0f)
		{
		}
		/** The style to use for this scrollbar */
		SLATE_STYLE_ARGUMENT(FScrollBarStyle, Style)
		SLATE_EVENT(FOnUserScrolled, OnUserScrolled)
		SLATE_ARGUMENT(bool, AlwaysShowScrollbar)
		SLATE_ARGUMENT(bool, AlwaysShowScrollbarTrack)
		SLATE_ARGUMENT(EOrientation, Orientation)
		/** The thickness of the scrollbar thumb */
		SLATE_ATTRIBUTE(FVector2D, Thickness)
		/** The margin around the scrollbar */
		SLATE_ATTRIBUTE(FMargin, Padding)
		SLATE_END_ARGS()

		/**
		 * Construct this widget
		 *
		 * @param	InArgs	The declaration data for this widget
		 */
		void Construct(const FArguments& InArgs);

		/**
		 * Set the handler to be invoked when the user scrolls.
		 *
		 * @param InHandler   Method to execute when the user scrolls the scrollbar
		 */
		void SetOnUserScrolled(const FOnUserScrolled& InHandler);

		/**
		 * Set the offset and size of the track's thumb.
		 * Note that the maximum offset is 1.0-ThumbSizeFraction.
		 * If the user can view 1/3 of the items in a single page, the maximum offset will be ~0.667f
		 *
		 * @param InOffsetFraction     Offset of the thumbnail from the top as a fraction of the total available scroll space.
		 * @param InThumbSizeFraction  Size of thumbnail as a fraction of the total available scroll space.
		 */
		void SetState(float InOffsetFraction, float InThumbSizeFraction);

		// SWidget
		virtual void Tick(const FGeometry& AllottedGeometry, const double InCurrentTime, const float InDeltaTime) override;
		// SWidget

		/** @return true if scrolling is possible; false if the view is big enough to fit all the content */
		bool IsNeeded() const;

		/** @return normalized distance from top */
		float DistanceFromTop() const;

		/** @return normalized distance from bottom */
		float DistanceFromBottom() const;

		/** @return the scrollbar's visibility as a product of internal rules and user-specified visibility */
		EVisibility ShouldBeVisible() const;

		/** @return True if the user is scrolling by dragging the scroll bar thumb. */
		bool IsScrolling() const;

		/** @return the orientation in which the scrollbar is scrolling. */
		EOrientation GetOrientation() const;

		/** Set argument Style */
		void SetStyle(const FScrollBarStyle* InStyle);

		/** Set UserVisibility attribute */
		void SetUserVisibility(TAttribute<EVisibility> InUserVisibility) { UserVisibility = InUserVisibility; }

		/** Set Thickness attribute */
		void SetThickness(TAttribute<FVector2D> InThickness);

		/** Set ScrollBarAlwaysVisible attribute */
		void SetScrollBarAlwaysVisible(bool InAlwaysVisible);

		/** Set ScrollBarTrackAlwaysVisible attribute */
		void SetScrollBarTrackAlwaysVisible(bool InAlwaysVisible);

		/** Returns True when the scrollbar should always be shown, else False */
		bool AlwaysShowScrollbar() const;

		SScrollBar();

	protected:
		/** We fade the scroll track unless it is being hovered*/
		FSlateColor GetTrackOpacity() const;

		/** We always show a subtle scroll thumb, but highlight it extra when dragging */
		FLinearColor GetThumbOpacity() const;

		/** @return the name of an image for the scrollbar thumb based on whether the user is dragging or hovering it. */
		const FSlateBrush* GetDragThumbImage() const;

		/** The scrollbar's visibility as specified by the user. Will be compounded with internal visibility rules. */
		TAttribute<EVisibility> UserVisibility;

		TSharedPtr<SImage> TopImage;
		TSharedPtr<SImage> BottomImage;
		TSharedPtr<SBorder> DragThumb;
		TSharedPtr<SSpacer> ThicknessSpacer;
		bool bDraggingThumb;
		TSharedPtr<SScrollBarTrack> Track;
		FOnUserScrolled OnUserScrolled;
		EOrientation Orientation;
		bool bAlwaysShowScrollbar;
		bool bAlwaysShowScrollbarTrack;
		bool bIsScrolling;

		/** Image to use when the scrollbar thumb is in its normal state */
		const FSlateBrush* NormalThumbImage;
		/** Image to use when the scrollbar thumb is in its hovered state */
		const FSlateBrush* HoveredThumbImage;
		/** Image to use when the scrollbar thumb is in its dragged state */
		const FSlateBrush* DraggedThumbImage;
		/** Background brush */
		const FSlateBrush* BackgroundBrush;
		/** Top brush */
		const FSlateBrush* TopBrush;
		/** Bottom brush */
		const FSlateBrush* BottomBrush;
};
