#include "Widgets/Input/SMenuAnchor.h"

#include "Layout/ArrangedChildren.h"
#include "Layout/LayoutUtils.h"
#include "Types/PaintArgs.h"
#include "Widgets/SNullWidget.h"

#include <algorithm>

SMenuAnchor::SMenuAnchor()
	: MenuContent(SNullWidget::NullWidget)
	, WrappedContent(SNullWidget::NullWidget)
	, Children(this)
	, bIsMenuOpen(false)
{
}

SMenuAnchor::~SMenuAnchor()
{
	// A menu still open when its anchor goes is closed with it.
	if (bIsMenuOpen)
	{
		bIsMenuOpen = false;
		OnMenuOpenChanged.ExecuteIfBound(false);
	}
}

void SMenuAnchor::Construct(const FArguments& InArgs)
{
	Children.AddSlot(MoveTemp(FBasicLayoutWidgetSlot::FSlotArguments(MakeUnique<FBasicLayoutWidgetSlot>()).Padding(InArgs._Padding)[InArgs._Content.Widget]));
	Children.AddSlot(FBasicLayoutWidgetSlot::FSlotArguments(MakeUnique<FBasicLayoutWidgetSlot>()));

	MenuContent = InArgs._MenuContent;
	WrappedContent = InArgs._MenuContent;
	OnGetMenuContent = InArgs._OnGetMenuContent;
	OnMenuOpenChanged = InArgs._OnMenuOpenChanged;
	Placement = InArgs._Placement;
}

void SMenuAnchor::SetContent(TSharedRef<SWidget> InContent)
{
	Children[0].SetPadding(0.0f);
	Children[0].AttachWidget(InContent);
}

void SMenuAnchor::SetMenuContent(TSharedRef<SWidget> InMenuContent)
{
	MenuContent = InMenuContent;
	WrappedContent = InMenuContent;
}

void SMenuAnchor::SetIsOpen(bool InIsOpen, const bool bFocusMenu, const int32 FocusUserIndex)
{
	if (IsOpen() == InIsOpen)
	{
		return;
	}
	if (InIsOpen)
	{
		// The content is made afresh each time the menu opens, when a delegate makes it.
		if (OnGetMenuContent.IsBound())
		{
			SetMenuContent(OnGetMenuContent.Execute());
		}
		if (MenuContent.IsValid())
		{
			bIsMenuOpen = true;
			OnMenuOpenChanged.ExecuteIfBound(true);
		}
	}
	else
	{
		bIsMenuOpen = false;
		OnMenuOpenChanged.ExecuteIfBound(false);
	}
}

bool SMenuAnchor::IsOpen() const
{
	return bIsMenuOpen;
}

void SMenuAnchor::OnArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren) const
{
	ArrangeSingleChild(AllottedGeometry, ArrangedChildren, Children[0], FVector2D::UnitVector);
}

FVector2D SMenuAnchor::ComputeDesiredSize(float) const
{
	// An anchor asks for at least a pixel, so that a panel still paints it when it has no content.
	const FVector2D DesiredWidgetSize = Children[0].GetWidget()->GetDesiredSize();
	return FVector2D(std::max(DesiredWidgetSize.X, 1.0), std::max(DesiredWidgetSize.Y, 1.0));
}

FChildren* SMenuAnchor::GetChildren()
{
	return &Children;
}

int32 SMenuAnchor::OnPaint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	FArrangedChildren ArrangedChildren(EVisibility::Visible);
	ArrangeChildren(AllottedGeometry, ArrangedChildren);
	if (ArrangedChildren.Num() > 0 && ArrangedChildren[0].Widget == Children[0].GetWidget())
	{
		const FArrangedWidget& Content = ArrangedChildren[0];
		LayerId = Content.Widget->Paint(Args.WithNewParent(this), Content.Geometry, MyCullingRect, OutDrawElements, LayerId + 1, InWidgetStyle, ShouldBeEnabled(bParentEnabled));
	}
	return LayerId;
}
