#pragma once

#include "CoreMinimal.h"
#include "Misc/Attribute.h"

class FSlateRenderer;
class IToolTip;
class SWidget;

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

protected:
	static TSharedPtr<FSlateApplicationBase> CurrentBaseApplication;

	TSharedPtr<FSlateRenderer> Renderer;
};
