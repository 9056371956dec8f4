#include "HeadlessPopupLayer.h"

#include "HeadlessMenus.h"
#include "Layout/Children.h"
#include "Rendering/DrawElements.h"
#include "Types/PaintArgs.h"
#include "Widgets/Input/SMenuAnchor.h"

#include <algorithm>

namespace
{
	/** Reaches the anchor's protected drop-down and placement, as a derived class may. */
	struct FMenuAnchorAccess : SMenuAnchor
	{
		static TSharedPtr<SWidget> GetWrappedContent(const SMenuAnchor& Anchor) { return Anchor.*(&FMenuAnchorAccess::WrappedContent); }
		static EMenuPlacement GetPlacement(const SMenuAnchor& Anchor) { return (Anchor.*(&FMenuAnchorAccess::Placement)).Get(); }
	};

	/** Appends the open menu anchors under Widget, outermost first. */
	void FindOpenAnchors(const TSharedRef<SWidget>& Widget, TArray<TSharedRef<SMenuAnchor>>& OutAnchors)
	{
		if (SMenuAnchor* Anchor = dynamic_cast<SMenuAnchor*>(&Widget.Get()); Anchor && Anchor->IsOpen())
		{
			OutAnchors.Add(StaticCastSharedRef<SMenuAnchor>(Widget));
		}
		FChildren* Children = Widget->GetChildren();
		for (int32 Index = 0; Index < Children->Num(); ++Index)
		{
			FindOpenAnchors(Children->GetChildAt(Index), OutAnchors);
		}
	}

	/** Where the editor opens a drop-down of the given size for an anchor painted at AnchorGeometry. */
	FVector2D GetPopupPosition(const FGeometry& AnchorGeometry, EMenuPlacement Placement, const FVector2D& PopupSize)
	{
		const FVector2D Position = AnchorGeometry.GetAbsolutePosition();
		const FVector2D Size = AnchorGeometry.GetAbsoluteSize();
		switch (Placement)
		{
			case MenuPlacement_MenuRight:
			case MenuPlacement_RightLeftCenter:
				return FVector2D(Position.X + Size.X, Position.Y);
			case MenuPlacement_MenuLeft:
				return FVector2D(Position.X - PopupSize.X, Position.Y);
			case MenuPlacement_AboveAnchor:
				return FVector2D(Position.X, Position.Y - PopupSize.Y);
			case MenuPlacement_AboveRightAnchor:
				return FVector2D(Position.X + Size.X - PopupSize.X, Position.Y - PopupSize.Y);
			case MenuPlacement_CenteredAboveAnchor:
				return FVector2D(Position.X + (Size.X - PopupSize.X) / 2.0, Position.Y - PopupSize.Y);
			case MenuPlacement_CenteredBelowAnchor:
				return FVector2D(Position.X + (Size.X - PopupSize.X) / 2.0, Position.Y + Size.Y);
			case MenuPlacement_BelowRightAnchor:
				return FVector2D(Position.X + Size.X - PopupSize.X, Position.Y + Size.Y);
			case MenuPlacement_Center:
				return Position + (Size - PopupSize) / 2.0;
			default:
				return FVector2D(Position.X, Position.Y + Size.Y);
		}
	}

	/**
	 * Keeps a drop-down inside the window, as the application moves pop-up windows into the work area:
	 * one opening to the right that would pass the right edge opens to the left of its anchor instead;
	 * then whatever still passes an edge moves back in.
	 */
	FVector2D FitInRect(const FSlateRect& Area, const FGeometry& AnchorGeometry, EMenuPlacement Placement, const FVector2D& PopupSize)
	{
		FVector2D Position = GetPopupPosition(AnchorGeometry, Placement, PopupSize);
		if (Placement == MenuPlacement_MenuRight && Position.X + PopupSize.X > Area.Right)
		{
			Position.X = AnchorGeometry.GetAbsolutePosition().X - PopupSize.X;
		}
		Position.X = std::max(static_cast<double>(Area.Left), std::min(Position.X, Area.Right - PopupSize.X));
		Position.Y = std::max(static_cast<double>(Area.Top), std::min(Position.Y, Area.Bottom - PopupSize.Y));
		return Position;
	}
}

void SHeadlessPopupLayer::Construct(const FArguments& InArgs)
{
	ChildSlot[InArgs._Content.Widget];
}

TSharedRef<SWidget> SHeadlessPopupLayer::FindOrMakeWindow(const TSharedRef<SMenuAnchor>& Anchor) const
{
	// An anchor opened again since the last frame has made a new drop-down.
	const TSharedRef<SWidget> Content = FMenuAnchorAccess::GetWrappedContent(*Anchor).ToSharedRef();
	Popups.RemoveAll([&Anchor, &Content](const FPopup& Popup)
		{ return Popup.Anchor.Pin() == Anchor && Popup.Content.Pin().Get() != &Content.Get(); });
	if (const FPopup* Existing = Popups.FindByPredicate([&Anchor](const FPopup& Popup)
			{ return Popup.Anchor.Pin() == Anchor; }))
	{
		return Existing->Window.ToSharedRef();
	}
	const TSharedRef<SWidget> Window = UE::Headless::MakeMenuWindow(Content);
	Popups.Add(FPopup{Anchor, Content, Window});
	return Window;
}

TArray<TSharedRef<SWidget>> SHeadlessPopupLayer::GetDrawnWindows() const
{
	TArray<TSharedRef<SWidget>> Windows;
	for (const FPopup& Popup : Popups)
	{
		Windows.Add(Popup.Window.ToSharedRef());
	}
	return Windows;
}

int32 SHeadlessPopupLayer::OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	int32 MaxLayerId = SCompoundWidget::OnPaint(Args, AllottedGeometry, MyCullingRect, OutDrawElements, LayerId, InWidgetStyle, bParentEnabled);

	// Each drop-down is placed by its anchor as just painted, then searched for menus opened inside it.
	TArray<TSharedRef<SMenuAnchor>> OpenAnchors;
	FindOpenAnchors(ChildSlot.GetWidget(), OpenAnchors);
	for (int32 Index = 0; Index < OpenAnchors.Num(); ++Index)
	{
		const TSharedRef<SMenuAnchor>& Anchor = OpenAnchors[Index];
		const TSharedRef<SWidget> Window = FindOrMakeWindow(Anchor);
		Window->SlatePrepass(AllottedGeometry.Scale);
		const FVector2D PopupSize = Window->GetDesiredSize();
		const FVector2D PopupPosition = FitInRect(AllottedGeometry.GetLayoutBoundingRect(), Anchor->GetPaintSpaceGeometry(), FMenuAnchorAccess::GetPlacement(*Anchor), PopupSize * AllottedGeometry.Scale);
		const FGeometry PopupGeometry = AllottedGeometry.MakeChild(AllottedGeometry.AbsoluteToLocal(PopupPosition), PopupSize);
		MaxLayerId = Window->Paint(Args.WithNewParent(this), PopupGeometry, MyCullingRect, OutDrawElements, MaxLayerId + 1, InWidgetStyle, bParentEnabled);
		FindOpenAnchors(Window, OpenAnchors);
	}
	Popups.RemoveAll([](const FPopup& Popup)
		{
			const TSharedPtr<SMenuAnchor> Anchor = Popup.Anchor.Pin();
			return !Anchor.IsValid() || !Anchor->IsOpen(); });
	return MaxLayerId;
}
