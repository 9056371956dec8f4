#include "Framework/Application/SlateApplication.h"

#include "Widgets/SToolTip.h"
#include "Widgets/SWidget.h"

TSharedPtr<FSlateApplication> FSlateApplication::CurrentApplication;

FSlateApplication::~FSlateApplication() = default;

void FSlateApplication::Create()
{
	check(!CurrentApplication.IsValid());
	CurrentApplication = MakeShareable(new FSlateApplication());
	CurrentBaseApplication = CurrentApplication;
}

void FSlateApplication::Shutdown(bool bShutdownPlatform)
{
	if (CurrentApplication.IsValid())
	{
		CurrentApplication->KeyboardFocusedWidget.Reset();
		CurrentApplication->Renderer.Reset();
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
	KeyboardFocusedWidget = OptionalWidgetToFocus;
	return true;
}

void FSlateApplication::ClearKeyboardFocus(const EFocusCause ReasonFocusIsChanging)
{
	KeyboardFocusedWidget.Reset();
}

TSharedPtr<SWidget> FSlateApplication::GetKeyboardFocusedWidget() const
{
	return KeyboardFocusedWidget.Pin();
}

bool FSlateApplication::ProcessKeyDownEvent(const FKeyEvent& InKeyEvent)
{
	// The focus path runs from the focused widget up through its parents, as in a window.
	for (TSharedPtr<SWidget> Widget = KeyboardFocusedWidget.Pin(); Widget.IsValid(); Widget = Widget->GetParentWidget())
	{
		if (Widget->OnKeyDown(FGeometry(), InKeyEvent).IsEventHandled())
		{
			return true;
		}
	}
	return false;
}

TSharedRef<IToolTip> FSlateApplication::MakeToolTip(const TAttribute<FText>& ToolTipText)
{
	return SNew(SToolTip).Text(ToolTipText);
}

TSharedRef<IToolTip> FSlateApplication::MakeToolTip(const FText& ToolTipText)
{
	return SNew(SToolTip).Text(ToolTipText);
}
