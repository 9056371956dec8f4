#include "Widgets/Layout/SScrollBar.h"

#include "Widgets/Images/SImage.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/Layout/SScrollBarTrack.h"
#include "Widgets/Layout/SSpacer.h"
#include "Widgets/SBoxPanel.h"

namespace
{
	/** Below this, a thumb fraction counts as no thumb. */
	const float ThumbFractionTolerance = 1.e-4f;
}

SScrollBar::SScrollBar()
	: bDraggingThumb(false)
	, Orientation(Orient_Vertical)
	, bAlwaysShowScrollbar(false)
	, bAlwaysShowScrollbarTrack(true)
	, bIsScrolling(false)
	, NormalThumbImage(nullptr)
	, HoveredThumbImage(nullptr)
	, DraggedThumbImage(nullptr)
	, BackgroundBrush(nullptr)
	, TopBrush(nullptr)
	, BottomBrush(nullptr)
{
}

void SScrollBar::Construct(const FArguments& InArgs)
{
	OnUserScrolled = InArgs._OnUserScrolled;
	Orientation = InArgs._Orientation;
	UserVisibility = InArgs._Visibility;
	check(InArgs._Style);
	SetStyle(InArgs._Style);

	const TAttribute<FVector2D> Thickness = InArgs._Thickness.IsSet() ? InArgs._Thickness : TAttribute<FVector2D>(FVector2D(InArgs._Style->Thickness, InArgs._Style->Thickness));
	const EHorizontalAlignment HorizontalAlignment = Orientation == Orient_Vertical ? HAlign_Center : HAlign_Fill;
	const EVerticalAlignment VerticalAlignment = Orientation == Orient_Vertical ? VAlign_Fill : VAlign_Center;

	// The track's background, with the parts before and after the thumb and the thumb itself; the
	// thumb is as thick as the spacer inside it.
	SBorder::Construct(SBorder::FArguments()
						   .BorderImage(FCoreStyle::Get().GetBrush("NoBorder"))
						   .Padding(InArgs._Padding)
							   [SNew(SVerticalBox) + SVerticalBox::Slot().FillHeight(1.0f)[SNew(SBorder).BorderImage(BackgroundBrush).HAlign(HorizontalAlignment).VAlign(VerticalAlignment).Padding(0.0f)[SAssignNew(Track, SScrollBarTrack).Orientation(InArgs._Orientation).TopSlot()[SNew(SBox).HAlign(HorizontalAlignment).VAlign(VerticalAlignment)[SAssignNew(TopImage, SImage).Image(TopBrush)]].ThumbSlot()[SAssignNew(DragThumb, SBorder).HAlign(HAlign_Center).VAlign(VAlign_Center).Padding(0.0f)[SAssignNew(ThicknessSpacer, SSpacer).Size(Thickness)]].BottomSlot()[SNew(SBox).HAlign(HorizontalAlignment).VAlign(VerticalAlignment)[SAssignNew(BottomImage, SImage).Image(BottomBrush)]]]]]);

	// Without content to scroll, the bar cannot be used.
	SetEnabled(TAttribute<bool>::CreateSP(Track.Get(), &SScrollBarTrack::IsNeeded));
	SetScrollBarAlwaysVisible(InArgs._AlwaysShowScrollbar);
	bAlwaysShowScrollbarTrack = InArgs._AlwaysShowScrollbarTrack;
}

void SScrollBar::SetOnUserScrolled(const FOnUserScrolled& InHandler)
{
	OnUserScrolled = InHandler;
}

void SScrollBar::SetState(float InOffsetFraction, float InThumbSizeFraction)
{
	if (Track->DistanceFromTop() != InOffsetFraction || Track->GetThumbSizeFraction() != InThumbSizeFraction)
	{
		Track->SetSizes(InOffsetFraction, InThumbSizeFraction);
	}
}

void SScrollBar::Tick(const FGeometry& AllottedGeometry, const double InCurrentTime, const float InDeltaTime)
{
	SBorder::Tick(AllottedGeometry, InCurrentTime, InDeltaTime);
	DragThumb->SetBorderImage(GetDragThumbImage());
	DragThumb->SetColorAndOpacity(GetThumbOpacity());
	TopImage->SetColorAndOpacity(GetTrackOpacity());
	BottomImage->SetColorAndOpacity(GetTrackOpacity());
}

bool SScrollBar::IsNeeded() const
{
	return Track->IsNeeded();
}

float SScrollBar::DistanceFromTop() const
{
	return Track->DistanceFromTop();
}

float SScrollBar::DistanceFromBottom() const
{
	return Track->DistanceFromBottom();
}

EVisibility SScrollBar::ShouldBeVisible() const
{
	if (bDraggingThumb)
	{
		return EVisibility::Visible;
	}
	return Track->IsNeeded() ? UserVisibility.Get() : EVisibility::Collapsed;
}

bool SScrollBar::IsScrolling() const
{
	return bIsScrolling;
}

EOrientation SScrollBar::GetOrientation() const
{
	return Orientation;
}

void SScrollBar::SetStyle(const FScrollBarStyle* InStyle)
{
	const FScrollBarStyle* Style = InStyle ? InStyle : FArguments()._Style;
	check(Style);
	NormalThumbImage = &Style->NormalThumbImage;
	HoveredThumbImage = &Style->HoveredThumbImage;
	DraggedThumbImage = &Style->DraggedThumbImage;
	const bool bVertical = Orientation == Orient_Vertical;
	BackgroundBrush = bVertical ? &Style->VerticalBackgroundImage : &Style->HorizontalBackgroundImage;
	TopBrush = bVertical ? &Style->VerticalTopSlotImage : &Style->HorizontalTopSlotImage;
	BottomBrush = bVertical ? &Style->VerticalBottomSlotImage : &Style->HorizontalBottomSlotImage;
}

void SScrollBar::SetThickness(TAttribute<FVector2D> InThickness)
{
	ThicknessSpacer->SetSize(MoveTemp(InThickness));
}

void SScrollBar::SetScrollBarAlwaysVisible(bool InAlwaysVisible)
{
	bAlwaysShowScrollbar = InAlwaysVisible;
	if (InAlwaysVisible)
	{
		SetVisibility(EVisibility::Visible);
	}
	else
	{
		SetVisibility(TAttribute<EVisibility>::CreateSP(this, &SScrollBar::ShouldBeVisible));
	}
	Track->SetIsAlwaysVisible(InAlwaysVisible);
}

void SScrollBar::SetScrollBarTrackAlwaysVisible(bool InAlwaysVisible)
{
	bAlwaysShowScrollbarTrack = InAlwaysVisible;
}

bool SScrollBar::AlwaysShowScrollbar() const
{
	return bAlwaysShowScrollbar;
}

FSlateColor SScrollBar::GetTrackOpacity() const
{
	if (bDraggingThumb)
	{
		return FLinearColor(1.0f, 1.0f, 1.0f, 1.0f);
	}
	if ((bAlwaysShowScrollbarTrack && Track->GetThumbSizeFraction() > ThumbFractionTolerance) || AlwaysShowScrollbar())
	{
		return FLinearColor(1.0f, 1.0f, 1.0f, 0.5f);
	}
	return FLinearColor(1.0f, 1.0f, 1.0f, 0.0f);
}

FLinearColor SScrollBar::GetThumbOpacity() const
{
	if (Track->GetThumbSizeFraction() <= 0.0f)
	{
		return FLinearColor(1.0f, 1.0f, 1.0f, 0.0f);
	}
	// Without a pointer the thumb is never hovered; it is dimmed until dragged.
	return bDraggingThumb ? FLinearColor(1.0f, 1.0f, 1.0f, 1.0f) : FLinearColor(1.0f, 1.0f, 1.0f, 0.75f);
}

const FSlateBrush* SScrollBar::GetDragThumbImage() const
{
	return bDraggingThumb ? DraggedThumbImage : NormalThumbImage;
}
