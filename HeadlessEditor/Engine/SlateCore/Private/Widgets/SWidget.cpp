#include "Widgets/SWidget.h"

#include "Application/SlateApplicationBase.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/IToolTip.h"

SWidget::SWidget()
	: EnabledStateAttribute(true)
	, VisibilityAttribute(EVisibility::Visible)
	, TypeOfWidget(TEXT("SWidget"))
{
}

SWidget::~SWidget() = default;

void SWidget::SWidgetConstruct(const FSlateBaseNamedArgs& Args)
{
	EnabledStateAttribute = Args._IsEnabled;
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
