#pragma once

#include "CoreMinimal.h"
#include "Layout/Children.h"
#include "SlotBase.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SPanel.h"

class FArrangedChildren;

/** The track of a scroll bar: the part before the thumb, the thumb, and the part after it. */
class SLATE_API SScrollBarTrack : public SPanel
{
public:
	/** A ScrollBarTrack slot is very simple - it just stores a widget. */
	class FSlot : public TSlotBase<FSlot>
	{
	public:
		FSlot()
			: TSlotBase<FSlot>()
		{
		}
	};

	SLATE_BEGIN_ARGS(SScrollBarTrack)
		: _TopSlot()
		, _ThumbSlot()
		, _BottomSlot()
		, _Orientation(Orient_Vertical)
		{
			_Visibility = EVisibility::SelfHitTestInvisible;
		}
		SLATE_NAMED_SLOT(FArguments, TopSlot)
		SLATE_NAMED_SLOT(FArguments, ThumbSlot)
		SLATE_NAMED_SLOT(FArguments, BottomSlot)
		SLATE_ARGUMENT(EOrientation, Orientation)
		SLATE_END_ARGS()

		SScrollBarTrack()
			: Children(this)
		{
		}

		void Construct(const FArguments& InArgs);

		/** Where the thumb lies along a track of the given geometry, and how long it is. */
		struct FTrackSizeInfo
		{
			FTrackSizeInfo(const FGeometry& TrackGeometry, EOrientation InOrientation, float InMinThumbSize, float ThumbSizeAsFractionOfTrack, float ThumbOffsetAsFractionOfTrack)
			{
				BiasedTrackSize = static_cast<float>((InOrientation == Orient_Horizontal) ? TrackGeometry.GetLocalSize().X : TrackGeometry.GetLocalSize().Y) - InMinThumbSize;
				const float AccurateThumbSize = ThumbSizeAsFractionOfTrack * BiasedTrackSize;
				ThumbStart = BiasedTrackSize * ThumbOffsetAsFractionOfTrack;
				ThumbSize = InMinThumbSize + AccurateThumbSize;
			}

			float BiasedTrackSize;
			float ThumbStart;
			float ThumbSize;

			float GetThumbEnd() { return ThumbStart + ThumbSize; }
		};

		FTrackSizeInfo GetTrackSizeInfo(const FGeometry& InTrackGeometry) const;

		virtual void OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const override;
		virtual FVector2D ComputeDesiredSize(float) const override;
		virtual FChildren* GetChildren() override;

		/** Sets where the thumb starts and how long it is, as fractions of the track. */
		void SetSizes(float InThumbOffsetFraction, float InThumbSizeFraction);
		/** Whether the content is longer than the view, so that the track has a thumb to move. */
		bool IsNeeded() const;
		float DistanceFromTop() const;
		float DistanceFromBottom() const;
		float GetMinThumbSize() const;
		float GetThumbSizeFraction() const;
		void SetIsAlwaysVisible(bool InIsAlwaysVisible);

	protected:
		static const int32 TOP_SLOT_INDEX = 0;
		static const int32 BOTTOM_SLOT_INDEX = 1;
		static const int32 THUMB_SLOT_INDEX = 2;

		TPanelChildren<FSlot> Children;

		float OffsetFraction;
		float ThumbSizeFraction;
		float MinThumbSize;
		bool bIsAlwaysVisible = false;
		EOrientation Orientation;
};
