#include "Framework/Application/SlateApplication.h"

#include "Framework/Application/SWindowTitleBar.h"
#include "Styling/CoreStyle.h"
#include "Styling/ISlateStyle.h"
#include "Styling/SlateStyleRegistry.h"
#include "Widgets/SToolTip.h"
#include "Widgets/SWidget.h"

TSharedPtr<FSlateApplication> FSlateApplication::CurrentApplication;

FSlateApplication::~FSlateApplication() = default;

void FSlateApplication::Create()
{
	check(!CurrentApplication.IsValid());
	CurrentApplication = MakeShareable(new FSlateApplication());
	CurrentBaseApplication = CurrentApplication;
	// The core style is found by name from now on, as icons and the application style find it.
	FSlateStyleRegistry::RegisterSlateStyle(FCoreStyle::Get());
}

void FSlateApplication::Shutdown(bool bShutdownPlatform)
{
	if (CurrentApplication.IsValid())
	{
		CurrentApplication->KeyboardFocusedWidget.Reset();
		CurrentApplication->Renderer.Reset();
		FSlateStyleRegistry::UnRegisterSlateStyle(FCoreStyle::Get());
		CurrentBaseApplication.Reset();
		CurrentApplication.Reset();
	}
}

bool FSlateApplication::InitializeRenderer(TSharedRef<FSlateRenderer> InRenderer, bool bQuietMode)
{
	Renderer = InRenderer;
	return true;
}

bool FSlateApplication::SetKeyboardFocus(const TSharedPtr<SWidget>& OptionalWidgetToFocus, EFocusCause ReasonFocusIsChanging)
{
	if (!OptionalWidgetToFocus.IsValid())
	{
		ClearKeyboardFocus(ReasonFocusIsChanging);
		return false;
	}
	// Only widgets that support keyboard focus can take it.
	if (!OptionalWidgetToFocus->SupportsKeyboardFocus())
	{
		return false;
	}
	if (OptionalWidgetToFocus != KeyboardFocusedWidget.Pin())
	{
		ClearKeyboardFocus(ReasonFocusIsChanging);
		KeyboardFocusedWidget = OptionalWidgetToFocus;
		// A widget may pass the focus on, as a text box gives it to the text inside.
		ProcessReply(OptionalWidgetToFocus->OnFocusReceived(OptionalWidgetToFocus->GetPaintSpaceGeometry(), FFocusEvent(ReasonFocusIsChanging, 0)));
	}
	return true;
}

void FSlateApplication::ClearKeyboardFocus(const EFocusCause ReasonFocusIsChanging)
{
	const TSharedPtr<SWidget> Previous = KeyboardFocusedWidget.Pin();
	KeyboardFocusedWidget.Reset();
	if (Previous.IsValid())
	{
		Previous->OnFocusLost(FFocusEvent(ReasonFocusIsChanging, 0));
	}
}

TSharedPtr<SWidget> FSlateApplication::GetKeyboardFocusedWidget() const
{
	return KeyboardFocusedWidget.Pin();
}

bool FSlateApplication::RouteAlongFocusPath(TFunctionRef<FReply(SWidget&)> Handler)
{
	// The focus path runs from the focused widget up through its parents, as in a window.
	for (TSharedPtr<SWidget> Widget = KeyboardFocusedWidget.Pin(); Widget.IsValid(); Widget = Widget->GetParentWidget())
	{
		const FReply Reply = Handler(*Widget);
		if (Reply.IsEventHandled())
		{
			ProcessReply(Reply);
			return true;
		}
	}
	return false;
}

void FSlateApplication::ProcessReply(const FReply& Reply)
{
	if (Reply.ShouldReleaseUserFocus())
	{
		ClearKeyboardFocus(Reply.GetFocusCause());
	}
	else if (Reply.ShouldSetUserFocus())
	{
		SetKeyboardFocus(Reply.GetUserFocusRecepient(), Reply.GetFocusCause());
	}
}

bool FSlateApplication::ProcessKeyDownEvent(const FKeyEvent& InKeyEvent)
{
	return RouteAlongFocusPath([&InKeyEvent](SWidget& Widget)
		{ return Widget.OnKeyDown(Widget.GetPaintSpaceGeometry(), InKeyEvent); });
}

bool FSlateApplication::ProcessKeyUpEvent(const FKeyEvent& InKeyEvent)
{
	return RouteAlongFocusPath([&InKeyEvent](SWidget& Widget)
		{ return Widget.OnKeyUp(Widget.GetPaintSpaceGeometry(), InKeyEvent); });
}

bool FSlateApplication::ProcessKeyCharEvent(const FCharacterEvent& InCharacterEvent)
{
	return RouteAlongFocusPath([&InCharacterEvent](SWidget& Widget)
		{ return Widget.OnKeyChar(Widget.GetPaintSpaceGeometry(), InCharacterEvent); });
}

TSharedRef<IToolTip> FSlateApplication::MakeToolTip(const TAttribute<FText>& ToolTipText)
{
	return SNew(SToolTip).Text(ToolTipText);
}

TSharedRef<IToolTip> FSlateApplication::MakeToolTip(const FText& ToolTipText)
{
	return SNew(SToolTip).Text(ToolTipText);
}

TSharedRef<SWidget> FSlateApplication::MakeWindowTitleBar(const FWindowTitleBarArgs& InArgs, TSharedPtr<IWindowTitleBar>& OutTitleBar) const
{
	TSharedRef<SWindowTitleBar> TitleBar = SNew(SWindowTitleBar, InArgs.Window, InArgs.CenterContent, InArgs.CenterContentAlignment).Visibility(EVisibility::SelfHitTestInvisible);
	OutTitleBar = TitleBar;
	return TitleBar;
}
