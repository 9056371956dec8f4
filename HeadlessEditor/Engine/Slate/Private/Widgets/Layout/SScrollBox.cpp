#include "Widgets/Layout/SScrollBox.h"

#include "Layout/ArrangedChildren.h"
#include "Layout/LayoutUtils.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Layout/SScrollBar.h"
#include "Widgets/SOverlay.h"

#include <algorithm>

namespace
{
	/** How far the content must be scrolled for the shadow hinting at it to show fully. */
	const float ShadowFadeDistance = 32.0f;
}

SScrollBox::FSlot::FSlotArguments SScrollBox::Slot()
{
	return FSlot::FSlotArguments(MakeUnique<FSlot>());
}

SScrollBox::SScrollBox()
	: DesiredScrollOffset(0.0f)
	, VerticalScrollBarSlot(nullptr)
	, HorizontalScrollBarSlot(nullptr)
	, BackPadScrolling(false)
	, FrontPadScrolling(false)
	, Orientation(Orient_Vertical)
	, Style(nullptr)
	, ScrollBarStyle(nullptr)
	, bScrollToEnd(false)
	, bScrollBarIsExternal(false)
{
}

void SScrollBox::Construct(const FArguments& InArgs)
{
	check(InArgs._Style);
	Style = InArgs._Style;
	ScrollBarStyle = InArgs._ScrollBarStyle;
	DesiredScrollOffset = 0.0f;
	OnUserScrolled = InArgs._OnUserScrolled;
	Orientation = InArgs._Orientation;
	BackPadScrolling = InArgs._BackPadScrolling;
	FrontPadScrolling = InArgs._FrontPadScrolling;

	bScrollBarIsExternal = InArgs._ExternalScrollbar.IsValid();
	if (bScrollBarIsExternal)
	{
		ScrollBar = InArgs._ExternalScrollbar;
		ScrollBar->SetOnUserScrolled(FOnUserScrolled::CreateSP(this, &SScrollBox::ScrollBar_OnUserScrolled));
	}
	else
	{
		ScrollBar = ConstructScrollBar();
		ScrollBar->SetThickness(InArgs._ScrollBarThickness);
		ScrollBar->SetUserVisibility(InArgs._ScrollBarVisibility);
		ScrollBar->SetScrollBarAlwaysVisible(InArgs._ScrollBarAlwaysVisible);
		ScrollBarSlotPadding = InArgs._ScrollBarPadding;
	}

	SAssignNew(ScrollPanel, SScrollPanel, MoveTemp(const_cast<TArray<FSlot::FSlotArguments>&>(InArgs._Slots)))
		.Clipping(InArgs._Clipping)
		.Orientation(Orientation)
		.BackPadScrolling(BackPadScrolling)
		.FrontPadScrolling(FrontPadScrolling);

	if (Orientation == Orient_Vertical)
	{
		ConstructVerticalLayout();
	}
	else
	{
		ConstructHorizontalLayout();
	}
	ScrollBar->SetState(0.0f, 1.0f);
}

TSharedPtr<SScrollBar> SScrollBox::ConstructScrollBar()
{
	return TSharedPtr<SScrollBar>(SNew(SScrollBar).Style(ScrollBarStyle).Orientation(Orientation).Padding(0.0f).OnUserScrolled(this, &SScrollBox::ScrollBar_OnUserScrolled));
}

void SScrollBox::ConstructVerticalLayout()
{
	// The scrolled content under its shadows, and the scroll bar at its right unless the owner places it.
	TSharedRef<SHorizontalBox> PanelAndScrollbar = SNew(SHorizontalBox) + SHorizontalBox::Slot().FillWidth(1.0f)[SNew(SOverlay) + SOverlay::Slot().Padding(FMargin(0.0f, 0.0f, 0.0f, 1.0f))[ScrollPanel.ToSharedRef()] + SOverlay::Slot().HAlign(HAlign_Fill).VAlign(VAlign_Top)[SNew(SImage).Visibility(EVisibility::HitTestInvisible).ColorAndOpacity(this, &SScrollBox::GetStartShadowOpacity).Image(&Style->TopShadowBrush)] + SOverlay::Slot().HAlign(HAlign_Fill).VAlign(VAlign_Bottom)[SNew(SImage).Visibility(EVisibility::HitTestInvisible).ColorAndOpacity(this, &SScrollBox::GetEndShadowOpacity).Image(&Style->BottomShadowBrush)]];
	VerticalScrollBarSlot = nullptr;
	if (!bScrollBarIsExternal)
	{
		PanelAndScrollbar->AddSlot().AutoWidth().Expose(VerticalScrollBarSlot).Padding(ScrollBarSlotPadding)[ScrollBar.ToSharedRef()];
	}
	ChildSlot[PanelAndScrollbar];
}

void SScrollBox::ConstructHorizontalLayout()
{
	// The scrolled content under its shadows, and the scroll bar below it unless the owner places it.
	TSharedRef<SVerticalBox> PanelAndScrollbar = SNew(SVerticalBox) + SVerticalBox::Slot().FillHeight(1.0f)[SNew(SOverlay) + SOverlay::Slot().Padding(FMargin(0.0f, 0.0f, 1.0f, 0.0f))[ScrollPanel.ToSharedRef()] + SOverlay::Slot().HAlign(HAlign_Left).VAlign(VAlign_Fill)[SNew(SImage).Visibility(EVisibility::HitTestInvisible).ColorAndOpacity(this, &SScrollBox::GetStartShadowOpacity).Image(&Style->LeftShadowBrush)] + SOverlay::Slot().HAlign(HAlign_Right).VAlign(VAlign_Fill)[SNew(SImage).Visibility(EVisibility::HitTestInvisible).ColorAndOpacity(this, &SScrollBox::GetEndShadowOpacity).Image(&Style->RightShadowBrush)]];
	HorizontalScrollBarSlot = nullptr;
	if (!bScrollBarIsExternal)
	{
		PanelAndScrollbar->AddSlot().AutoHeight().Expose(HorizontalScrollBarSlot).Padding(ScrollBarSlotPadding)[ScrollBar.ToSharedRef()];
	}
	ChildSlot[PanelAndScrollbar];
}

SScrollBox::FScopedWidgetSlotArguments SScrollBox::AddSlot()
{
	return FScopedWidgetSlotArguments{MakeUnique<FSlot>(), ScrollPanel->Children, INDEX_NONE};
}

void SScrollBox::RemoveSlot(const TSharedRef<SWidget>& WidgetToRemove)
{
	ScrollPanel->Children.Remove(WidgetToRemove);
}

void SScrollBox::ClearChildren()
{
	ScrollPanel->Children.Empty();
}

FVector2D SScrollBox::GetScrollPanelSize() const
{
	return ScrollPanel->GetPaintSpaceGeometry().GetLocalSize();
}

float SScrollBox::GetScrollOffset() const
{
	return DesiredScrollOffset;
}

float SScrollBox::GetViewFraction() const
{
	const float ContentSize = GetScrollComponentFromVector(ScrollPanel->GetDesiredSize());
	const float ViewSize = GetScrollComponentFromVector(GetScrollPanelSize());
	// A box with no size yet shows all its content, so that the bar does not appear before the first layout.
	const float Fraction = GetScrollComponentFromVector(CachedGeometry.GetLocalSize()) > 0.0f && ContentSize > 0.0f ? ViewSize / ContentSize : 1.0f;
	return std::min(std::max(Fraction, 0.0f), 1.0f);
}

float SScrollBox::GetViewOffsetFraction() const
{
	const float ContentSize = GetScrollComponentFromVector(ScrollPanel->GetDesiredSize());
	const float Offset = ContentSize > 0.0f ? DesiredScrollOffset / ContentSize : 0.0f;
	return std::min(std::max(Offset, 0.0f), 1.0f - GetViewFraction());
}

float SScrollBox::GetScrollOffsetOfEnd() const
{
	const float ContentSize = GetScrollComponentFromVector(ScrollPanel->GetDesiredSize());
	return std::max(ContentSize - GetScrollComponentFromVector(GetScrollPanelSize()), 0.0f);
}

void SScrollBox::SetScrollOffset(float NewScrollOffset)
{
	DesiredScrollOffset = NewScrollOffset;
	bScrollToEnd = false;
}

void SScrollBox::ScrollToStart()
{
	SetScrollOffset(0.0f);
}

void SScrollBox::ScrollToEnd()
{
	bScrollToEnd = true;
}

EOrientation SScrollBox::GetOrientation()
{
	return Orientation;
}

void SScrollBox::SetScrollBarVisibility(EVisibility InVisibility)
{
	ScrollBar->SetUserVisibility(InVisibility);
}

void SScrollBox::SetScrollBarAlwaysVisible(bool InAlwaysVisible)
{
	ScrollBar->SetScrollBarAlwaysVisible(InAlwaysVisible);
}

void SScrollBox::SetScrollBarThickness(FVector2D InThickness)
{
	ScrollBar->SetThickness(InThickness);
}

void SScrollBox::SetScrollBarPadding(const FMargin& InPadding)
{
	ScrollBarSlotPadding = InPadding;
	if (VerticalScrollBarSlot)
	{
		VerticalScrollBarSlot->SetPadding(ScrollBarSlotPadding);
	}
	if (HorizontalScrollBarSlot)
	{
		HorizontalScrollBarSlot->SetPadding(ScrollBarSlotPadding);
	}
}

void SScrollBox::Tick(const FGeometry& AllottedGeometry, const double InCurrentTime, const float InDeltaTime)
{
	CachedGeometry = AllottedGeometry;
	if (bScrollToEnd)
	{
		DesiredScrollOffset = GetScrollOffsetOfEnd();
		bScrollToEnd = false;
	}
	// The panel moves its content by the offset; the bar shows the part in view.
	const float ViewFraction = GetViewFraction();
	const float ViewOffset = GetViewOffsetFraction();
	ScrollPanel->PhysicalOffset = GetScrollComponentFromVector(ViewOffset * ScrollPanel->GetDesiredSize());
	ScrollBar->SetState(ViewOffset, ViewFraction);
	if (!ScrollBar->IsNeeded())
	{
		ScrollPanel->PhysicalOffset = 0.0f;
	}
}

void SScrollBox::ScrollBar_OnUserScrolled(float InScrollOffsetFraction)
{
	const float ContentSize = GetScrollComponentFromVector(ScrollPanel->GetDesiredSize());
	SetScrollOffset(InScrollOffsetFraction * ContentSize);
	OnUserScrolled.ExecuteIfBound(DesiredScrollOffset);
}

FSlateColor SScrollBox::GetStartShadowOpacity() const
{
	// The shadow shows when there is content scrolled out of view before the visible part.
	const float ShadowOpacity = std::min(std::max(ScrollPanel->PhysicalOffset / ShadowFadeDistance, 0.0f), 1.0f);
	return FLinearColor(1.0f, 1.0f, 1.0f, ShadowOpacity);
}

FSlateColor SScrollBox::GetEndShadowOpacity() const
{
	// The shadow shows when there is content after the visible part.
	const float ShadowOpacity = ScrollBar->DistanceFromBottom() * GetScrollComponentFromVector(ScrollPanel->GetDesiredSize()) / ShadowFadeDistance;
	return FLinearColor(1.0f, 1.0f, 1.0f, ShadowOpacity);
}

void SScrollPanel::Construct(const FArguments& InArgs, TArray<SScrollBox::FSlot::FSlotArguments> InSlots)
{
	PhysicalOffset = 0.0f;
	Children.AddSlots(MoveTemp(InSlots));
	Orientation = InArgs._Orientation;
	BackPadScrolling = InArgs._BackPadScrolling;
	FrontPadScrolling = InArgs._FrontPadScrolling;
}

void SScrollPanel::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	const float ScrollPadding = static_cast<float>(Orientation == Orient_Vertical ? AllottedGeometry.GetLocalSize().Y : AllottedGeometry.GetLocalSize().X);
	float CurChildOffset = -PhysicalOffset + (BackPadScrolling ? ScrollPadding : 0.0f);
	for (int32 SlotIndex = 0; SlotIndex < Children.Num(); ++SlotIndex)
	{
		const SScrollBox::FSlot& ThisSlot = Children[SlotIndex];
		if (ThisSlot.GetWidget()->GetVisibility() == EVisibility::Collapsed)
		{
			continue;
		}
		CurChildOffset = Orientation == Orient_Vertical ? ArrangeChildVerticalAndReturnOffset(AllottedGeometry, ArrangedChildren, ThisSlot, CurChildOffset) : ArrangeChildHorizontalAndReturnOffset(AllottedGeometry, ArrangedChildren, ThisSlot, CurChildOffset);
	}
}

FVector2D SScrollPanel::ComputeDesiredSize(float) const
{
	// The slots end to end along the panel, as wide across as the widest.
	FVector2D ThisDesiredSize = FVector2D::ZeroVector;
	for (int32 SlotIndex = 0; SlotIndex < Children.Num(); ++SlotIndex)
	{
		const SScrollBox::FSlot& ThisSlot = Children[SlotIndex];
		if (ThisSlot.GetWidget()->GetVisibility() == EVisibility::Collapsed)
		{
			continue;
		}
		const FVector2D ChildDesiredSize = ThisSlot.GetWidget()->GetDesiredSize();
		if (Orientation == Orient_Vertical)
		{
			ThisDesiredSize.X = std::max(ChildDesiredSize.X, ThisDesiredSize.X);
			ThisDesiredSize.Y += ChildDesiredSize.Y + ThisSlot.GetPadding().GetTotalSpaceAlong<Orient_Vertical>();
		}
		else
		{
			ThisDesiredSize.X += ChildDesiredSize.X + ThisSlot.GetPadding().GetTotalSpaceAlong<Orient_Horizontal>();
			ThisDesiredSize.Y = std::max(ChildDesiredSize.Y, ThisDesiredSize.Y);
		}
	}
	// Padding lets the content scroll out of view at either end: as much as the panel is long.
	const double ScrollPadding = Orientation == Orient_Vertical ? GetPaintSpaceGeometry().GetLocalSize().Y : GetPaintSpaceGeometry().GetLocalSize().X;
	double& SizeSideToPad = Orientation == Orient_Vertical ? ThisDesiredSize.Y : ThisDesiredSize.X;
	SizeSideToPad += (BackPadScrolling ? ScrollPadding : 0.0) + (FrontPadScrolling ? ScrollPadding : 0.0);
	return ThisDesiredSize;
}

float SScrollPanel::ArrangeChildVerticalAndReturnOffset(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren, const SScrollBox::FSlot& ThisSlot, float CurChildOffset) const
{
	// Slots are stacked end to end: only their alignment across the panel applies.
	const FMargin& ThisPadding = ThisSlot.GetPadding();
	const FVector2D WidgetDesiredSize = ThisSlot.GetWidget()->GetDesiredSize();
	const float ThisSlotDesiredHeight = static_cast<float>(WidgetDesiredSize.Y) + ThisPadding.GetTotalSpaceAlong<Orient_Vertical>();
	const AlignmentArrangeResult XAlignmentResult = AlignChild<Orient_Horizontal>(static_cast<float>(AllottedGeometry.GetLocalSize().X), ThisSlot, ThisPadding);
	ArrangedChildren.AddWidget(AllottedGeometry.MakeChild(ThisSlot.GetWidget(), FVector2D(XAlignmentResult.Offset, CurChildOffset + ThisPadding.Top), FVector2D(XAlignmentResult.Size, WidgetDesiredSize.Y)));
	return CurChildOffset + ThisSlotDesiredHeight;
}

float SScrollPanel::ArrangeChildHorizontalAndReturnOffset(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren, const SScrollBox::FSlot& ThisSlot, float CurChildOffset) const
{
	const FMargin& ThisPadding = ThisSlot.GetPadding();
	const FVector2D WidgetDesiredSize = ThisSlot.GetWidget()->GetDesiredSize();
	const float ThisSlotDesiredWidth = static_cast<float>(WidgetDesiredSize.X) + ThisPadding.GetTotalSpaceAlong<Orient_Horizontal>();
	const AlignmentArrangeResult YAlignmentResult = AlignChild<Orient_Vertical>(static_cast<float>(AllottedGeometry.GetLocalSize().Y), ThisSlot, ThisPadding);
	ArrangedChildren.AddWidget(AllottedGeometry.MakeChild(ThisSlot.GetWidget(), FVector2D(CurChildOffset + ThisPadding.Left, YAlignmentResult.Offset), FVector2D(WidgetDesiredSize.X, YAlignmentResult.Size)));
	return CurChildOffset + ThisSlotDesiredWidth;
}
