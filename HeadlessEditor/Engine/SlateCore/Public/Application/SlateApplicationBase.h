#pragma once

#include "CoreMinimal.h"
#include "Misc/Attribute.h"
#include "Types/SlateEnums.h"

class FSlateRenderer;
class IToolTip;
class SWidget;
class SWindow;

/** What a window asks the application for when it makes its title bar. */
struct FWindowTitleBarArgs
{
	FWindowTitleBarArgs(const TSharedRef<SWindow>& InWindow)
		: Window(InWindow)
		, CenterContentAlignment(HAlign_Fill)
	{
	}

	/** The window to create the title bar for */
	TSharedRef<SWindow> Window;

	/** Optional content for the title bar's center (will override window title) */
	TSharedPtr<SWidget> CenterContent;

	/** The horizontal alignment of the center content. */
	EHorizontalAlignment CenterContentAlignment;
};

/** Interface for window title bars. */
class IWindowTitleBar
{
public:
	virtual ~IWindowTitleBar() = default;
	virtual void Flash() = 0;
};

/** What SlateCore needs of the application: its renderer and keyboard focus. */
class SLATECORE_API FSlateApplicationBase
{
public:
	FSlateApplicationBase() = default;
	virtual ~FSlateApplicationBase() = default;

	static bool IsInitialized() { return CurrentBaseApplication.IsValid(); }
	static FSlateApplicationBase& Get()
	{
		check(IsInitialized());
		return *CurrentBaseApplication;
	}

	/** The renderer set by InitializeRenderer; nullptr before that. */
	FSlateRenderer* GetRenderer() const { return Renderer.Get(); }

	virtual TSharedPtr<SWidget> GetKeyboardFocusedWidget() const = 0;

	/** How much the whole user interface is scaled. */
	virtual float GetApplicationScale() const = 0;

	/** Makes the standard tooltip widget showing the given text. */
	virtual TSharedRef<IToolTip> MakeToolTip(const TAttribute<FText>& ToolTipText) = 0;
	virtual TSharedRef<IToolTip> MakeToolTip(const FText& ToolTipText) = 0;

	/** Makes the title bar of a window; the application decides how title bars look. */
	virtual TSharedRef<SWidget> MakeWindowTitleBar(const FWindowTitleBarArgs& InArgs, TSharedPtr<IWindowTitleBar>& OutTitleBar) const = 0;

protected:
	static TSharedPtr<FSlateApplicationBase> CurrentBaseApplication;

	TSharedPtr<FSlateRenderer> Renderer;
};
