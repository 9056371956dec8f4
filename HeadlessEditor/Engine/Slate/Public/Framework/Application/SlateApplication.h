#pragma once

#include "Application/SlateApplicationBase.h"
#include "CoreMinimal.h"
#include "Input/Events.h"
#include "Input/Reply.h"
#include "Rendering/SlateRenderer.h"

class SWidget;

/** The Slate application: keyboard focus, input routing and the renderer. It opens no window here. */
class SLATE_API FSlateApplication : public FSlateApplicationBase
{
public:
	virtual ~FSlateApplication();

	/** Creates the application; a second Create is a fatal error. */
	static void Create();
	static void Shutdown(bool bShutdownPlatform = true);

	static bool IsInitialized() { return CurrentApplication.IsValid(); }
	static FSlateApplication& Get()
	{
		check(IsInitialized());
		return *CurrentApplication;
	}

	/** Sets the renderer that GetRenderer returns. */
	virtual bool InitializeRenderer(TSharedRef<FSlateRenderer> InRenderer, bool bQuietMode = false);

	/** Gives keyboard focus to a widget that supports it; @return whether the focus is now on it. */
	bool SetKeyboardFocus(const TSharedPtr<SWidget>& OptionalWidgetToFocus, EFocusCause ReasonFocusIsChanging = EFocusCause::SetDirectly);
	void ClearKeyboardFocus(const EFocusCause ReasonFocusIsChanging = EFocusCause::SetDirectly);
	virtual TSharedPtr<SWidget> GetKeyboardFocusedWidget() const override;
	virtual float GetApplicationScale() const override { return Scale; }

	/**
	 * Sends a key press to the focused widget, then to each of its ancestors in turn until one handles
	 * it. @return whether a widget handled it.
	 */
	bool ProcessKeyDownEvent(const FKeyEvent& InKeyEvent);
	bool ProcessKeyUpEvent(const FKeyEvent& InKeyEvent);
	/** Sends a typed character along the same path as a key press. */
	bool ProcessKeyCharEvent(const FCharacterEvent& InCharacterEvent);

	virtual TSharedRef<IToolTip> MakeToolTip(const TAttribute<FText>& ToolTipText) override;
	virtual TSharedRef<IToolTip> MakeToolTip(const FText& ToolTipText) override;
	virtual TSharedRef<SWidget> MakeWindowTitleBar(const FWindowTitleBarArgs& InArgs, TSharedPtr<IWindowTitleBar>& OutTitleBar) const override;

private:
	FSlateApplication() = default;

	/** Offers an event to the focused widget, then to each ancestor, until one handles it. */
	bool RouteAlongFocusPath(TFunctionRef<FReply(SWidget&)> Handler);
	/** Carries out the focus change a reply asks for. */
	void ProcessReply(const FReply& Reply);

	static TSharedPtr<FSlateApplication> CurrentApplication;

	TWeakPtr<SWidget> KeyboardFocusedWidget;
	float Scale = 1.0f;
};
