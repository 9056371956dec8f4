#pragma once

#include "Application/SlateApplicationBase.h"
#include "CoreMinimal.h"
#include "Styling/CoreStyle.h"
#include "Styling/SlateTypes.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

class SWindow;

/**
 * The title bar Slate draws for a window: the application's icon at the left, the title, and the
 * minimize, maximize and close buttons at the right (those the window does not offer are disabled).
 */
class SLATE_API SWindowTitleBar : public SCompoundWidget, public IWindowTitleBar
{
public:
	SLATE_BEGIN_ARGS(SWindowTitleBar)
		: _Style(&FCoreStyle::Get().GetWidgetStyle<FWindowStyle>("Window"))
		, _ShowAppIcon(true)
		, _Title()
		{
		}
		SLATE_STYLE_ARGUMENT(FWindowStyle, Style)
		SLATE_ARGUMENT(bool, ShowAppIcon)
		SLATE_ATTRIBUTE(FText, Title)
		SLATE_END_ARGS()

		void Construct(const FArguments& InArgs, const TSharedRef<SWindow>& InWindow, const TSharedPtr<SWidget>& InCenterContent, EHorizontalAlignment InCenterContentAlignment);

		virtual void Flash() override {}

	private:
		/** The left (application icon) and right (window buttons) parts of the bar. */
		void MakeTitleBarContentWidgets(TSharedPtr<SWidget>& OutLeftContent, TSharedPtr<SWidget>& OutRightContent);
		TSharedRef<SWidget> MakeTitleBarContent(TSharedPtr<SWidget> CenterContent, EHorizontalAlignment CenterContentAlignment);

		TWeakPtr<SWindow> OwnerWindowPtr;
		const FWindowStyle* Style = nullptr;
		TAttribute<FText> Title;
		bool ShowAppIcon = true;
};
