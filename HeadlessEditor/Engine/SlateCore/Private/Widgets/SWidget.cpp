#include "Widgets/SWidget.h"

#include "Application/SlateApplicationBase.h"
#include "Layout/ArrangedChildren.h"
#include "Layout/Children.h"
#include "Rendering/DrawElements.h"
#include "Styling/SlateColor.h"
#include "Styling/WidgetStyle.h"
#include "Types/PaintArgs.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/IToolTip.h"

SWidget::SWidget()
	: EnabledStateAttribute(true)
	, VisibilityAttribute(EVisibility::Visible)
	, TypeOfWidget(TEXT("SWidget"))
	, bNeedsPrepass(true)
	, bCanTick(true)
	, RenderOpacity(1.0f)
	, Clipping(EWidgetClipping::Inherit)
{
}

SWidget::~SWidget() = default;

void SWidget::SWidgetConstruct(const FSlateBaseNamedArgs& Args)
{
	EnabledStateAttribute = Args._IsEnabled;
	RenderOpacity = Args._RenderOpacity;
	Clipping = Args._Clipping;
	VisibilityAttribute = Args._Visibility;
	Tag = Args._Tag;
	if (Args._ToolTip.IsSet())
	{
		SetToolTip(Args._ToolTip);
	}
	else if (Args._ToolTipText.IsSet())
	{
		SetToolTipText(Args._ToolTipText);
	}
}

void SWidget::SetDebugInfo(const ANSICHAR* InType, const ANSICHAR* InFile, int32 OnLine, size_t InAllocSize)
{
	TypeOfWidget = FName(InType);
}

void SWidget::Tick(const FGeometry& AllottedGeometry, const double InCurrentTime, const float InDeltaTime)
{
}

FReply SWidget::OnFocusReceived(const FGeometry& MyGeometry, const FFocusEvent& InFocusEvent)
{
	return FReply::Unhandled();
}

void SWidget::OnFocusLost(const FFocusEvent& InFocusEvent)
{
}

FReply SWidget::OnKeyChar(const FGeometry& MyGeometry, const FCharacterEvent& InCharacterEvent)
{
	return FReply::Unhandled();
}

FReply SWidget::OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent)
{
	// A focusable widget takes the navigation keys to move focus; the headless editor moves none.
	if (SupportsKeyboardFocus())
	{
		const FKey Key = InKeyEvent.GetKey();
		if (Key == EKeys::Tab || Key == EKeys::Left || Key == EKeys::Right || Key == EKeys::Up || Key == EKeys::Down)
		{
			return FReply::Handled();
		}
	}
	return FReply::Unhandled();
}

FReply SWidget::OnKeyUp(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent)
{
	return FReply::Unhandled();
}

bool SWidget::SupportsKeyboardFocus() const
{
	return false;
}

bool SWidget::HasKeyboardFocus() const
{
	return FSlateApplicationBase::IsInitialized() && FSlateApplicationBase::Get().GetKeyboardFocusedWidget().Get() == this;
}

TSharedPtr<IToolTip> SWidget::GetToolTip()
{
	if (!ToolTip.IsSet() && PendingToolTipText.IsSet() && FSlateApplicationBase::IsInitialized())
	{
		ToolTip = TAttribute<TSharedPtr<IToolTip>>(TSharedPtr<IToolTip>(FSlateApplicationBase::Get().MakeToolTip(PendingToolTipText)));
	}
	return ToolTip.Get();
}

void SWidget::SetToolTipText(const TAttribute<FText>& ToolTipText)
{
	// The engine asks the application for the tooltip at once; widgets here may be built before it
	// exists, so the tooltip is made when first asked for.
	ToolTip = TAttribute<TSharedPtr<IToolTip>>();
	PendingToolTipText = ToolTipText;
}

void SWidget::SetToolTipText(const FText& InToolTipText)
{
	SetToolTipText(TAttribute<FText>(InToolTipText));
}

void SWidget::SetToolTip(const TAttribute<TSharedPtr<IToolTip>>& InToolTip)
{
	ToolTip = InToolTip;
}

void SWidget::SetVisibility(TAttribute<EVisibility> InVisibility)
{
	VisibilityAttribute = MoveTemp(InVisibility);
}

void SWidget::AssignParentWidget(TSharedPtr<SWidget> InParent)
{
	if (this != &SNullWidget::NullWidget.Get())
	{
		ParentWidgetPtr = InParent;
	}
}

bool SWidget::ConditionallyDetatchParentWidget(SWidget* InExpectedParent)
{
	if (ParentWidgetPtr.Pin().Get() == InExpectedParent)
	{
		ParentWidgetPtr.Reset();
		return true;
	}
	return false;
}

FString SWidget::GetTypeAsString() const
{
	return TypeOfWidget.ToString();
}

FName SWidget::GetType() const
{
	return TypeOfWidget;
}

FName SWidget::GetTag() const
{
	return Tag;
}

FString SWidget::ToString() const
{
	return GetTypeAsString();
}

const FGeometry& SWidget::GetPaintSpaceGeometry() const
{
	return PaintSpaceGeometry;
}

void SWidget::SlatePrepass()
{
	SlatePrepass(FSlateApplicationBase::IsInitialized() ? FSlateApplicationBase::Get().GetApplicationScale() : 1.0f);
}

void SWidget::SlatePrepass(float InLayoutScaleMultiplier)
{
	Prepass_Internal(InLayoutScaleMultiplier);
}

void SWidget::Prepass_Internal(float InLayoutScaleMultiplier)
{
	PrepassLayoutScaleMultiplier = InLayoutScaleMultiplier;
	// Children first: a widget's desired size is made of theirs.
	Prepass_ChildLoop(InLayoutScaleMultiplier, GetChildren());
	CacheDesiredSize(InLayoutScaleMultiplier);
	bNeedsPrepass = false;
}

void SWidget::Prepass_ChildLoop(float InLayoutScaleMultiplier, FChildren* MyChildren)
{
	MyChildren->ForEachWidget([InLayoutScaleMultiplier](SWidget& Child)
		{
			if (Child.GetVisibility() != EVisibility::Collapsed)
			{
				Child.Prepass_Internal(InLayoutScaleMultiplier);
			}
			else
			{
				// A collapsed child is sized when it shows again.
				Child.MarkPrepassAsDirty();
				Child.PrepassLayoutScaleMultiplier = InLayoutScaleMultiplier;
			} });
}

void SWidget::CacheDesiredSize(float InLayoutScaleMultiplier)
{
	DesiredSize = FVector2f(ComputeDesiredSize(InLayoutScaleMultiplier));
}

FVector2D SWidget::GetDesiredSize() const
{
	return FVector2D(DesiredSize.Get(FVector2f::ZeroVector));
}

void SWidget::ArrangeChildren(const FGeometry& AllottedGeometry, FArrangedChildren& ArrangedChildren, bool bUpdateAttributes) const
{
	OnArrangeChildren(AllottedGeometry, ArrangedChildren);
}

FSlateColor SWidget::GetForegroundColor() const
{
	return FSlateColor::UseForeground();
}

FSlateColor SWidget::GetDisabledForegroundColor() const
{
	return GetForegroundColor();
}

int32 SWidget::Paint(const FPaintArgs& Args, const FGeometry& AllottedGeometry, const FSlateRect& MyCullingRect, FSlateWindowElementList& OutDrawElements, int32 LayerId, const FWidgetStyle& InWidgetStyle, bool bParentEnabled) const
{
	SWidget* MutableThis = const_cast<SWidget*>(this);
	MutableThis->PaintSpaceGeometry = AllottedGeometry;
	if (bCanTick)
	{
		MutableThis->Tick(AllottedGeometry, Args.GetCurrentTime(), Args.GetDeltaTime());
	}

	// A clipping widget cuts its content to its bounds; OnDemand clips only content larger than the bounds.
	const FVector2D LocalSize = AllottedGeometry.GetLocalSize();
	const bool bClip = Clipping == EWidgetClipping::ClipToBounds || Clipping == EWidgetClipping::ClipToBoundsAlways || Clipping == EWidgetClipping::ClipToBoundsWithoutIntersecting || (Clipping == EWidgetClipping::OnDemand && (GetDesiredSize().X > LocalSize.X || GetDesiredSize().Y > LocalSize.Y));
	FSlateRect CullingBounds = MyCullingRect;
	if (bClip)
	{
		FSlateClippingZone ClippingZone(AllottedGeometry);
		ClippingZone.SetShouldIntersectParent(Clipping != EWidgetClipping::ClipToBoundsWithoutIntersecting);
		OutDrawElements.PushClip(ClippingZone);
		CullingBounds = MyCullingRect.IntersectionWith(AllottedGeometry.GetLayoutBoundingRect());
	}

	const FWidgetStyle ContentWidgetStyle = FWidgetStyle(InWidgetStyle).BlendOpacity(RenderOpacity);
	const int32 NewLayerId = OnPaint(Args.WithNewParent(this), AllottedGeometry, CullingBounds, OutDrawElements, LayerId, ContentWidgetStyle, bParentEnabled);

	if (bClip)
	{
		OutDrawElements.PopClip();
	}
	return NewLayerId;
}
