#pragma once

#include "CoreMinimal.h"
#include "Styling/CoreStyle.h"
#include "Styling/SlateTypes.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SCompoundWidget.h"

class IWindowTitleBar;

/** Where a window opens when it is first shown. */
enum class EAutoCenter : uint8
{
	/** Don't auto-center the window */
	None,
	/** Auto-center the window on the primary work area */
	PrimaryWorkArea,
	/** Auto-center the window on the preferred work area, determined using GetPreferredWorkArea() */
	PreferredWorkArea,
};

/** Enum to describe how windows are sized */
enum class ESizingRule : uint8
{
	/* The windows size fixed and cannot be resized **/
	FixedSize,
	/** The window size is computed from its content and cannot be resized by users */
	Autosized,
	/** The window can be resized by users */
	UserSized,
};

/**
 * A top-level window: Slate draws its frame (background, border, outline and title bar) around the
 * content, as the editor's windows have no frame of the operating system's.
 */
class SLATECORE_API SWindow : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SWindow)
		: _Style(&FCoreStyle::Get().GetWidgetStyle<FWindowStyle>("Window"))
		, _Title()
		, _AutoCenter(EAutoCenter::PreferredWorkArea)
		, _ClientSize(FVector2D::ZeroVector)
		, _SizingRule(ESizingRule::UserSized)
		, _HasCloseButton(true)
		, _SupportsMaximize(true)
		, _SupportsMinimize(true)
		, _CreateTitleBar(true)
		{
		}
		/** Style used to draw this window */
		SLATE_STYLE_ARGUMENT(FWindowStyle, Style)
		/** Title of the window */
		SLATE_ATTRIBUTE(FText, Title)
		/** The windows auto-centering mode. If set to anything other than None, then the ScreenPosition value will be ignored */
		SLATE_ARGUMENT(EAutoCenter, AutoCenter)
		/** What the initial size of the window should be. */
		SLATE_ARGUMENT(FVector2D, ClientSize)
		/** How the window should be sized */
		SLATE_ARGUMENT(ESizingRule, SizingRule)
		/** Whether or not the window has a close button */
		SLATE_ARGUMENT(bool, HasCloseButton)
		/** Can this window be maximized? */
		SLATE_ARGUMENT(bool, SupportsMaximize)
		/** Can this window be minimized? */
		SLATE_ARGUMENT(bool, SupportsMinimize)
		/** True if we should initially create a traditional title bar area. */
		SLATE_ARGUMENT(bool, CreateTitleBar)
		SLATE_DEFAULT_SLOT(FArguments, Content)
		SLATE_END_ARGS()

		SWindow();
		virtual ~SWindow();

		void Construct(const FArguments& InArgs);

		/** @return the title of the window */
		FText GetTitle() const { return Title.Get(); }

		/** Sets the widget content for this window */
		void SetContent(TSharedRef<SWidget> InContent);
		/** Gets the widget content for this window */
		TSharedRef<const SWidget> GetContent() const;

		bool HasCloseBox() const { return bHasCloseButton; }
		bool HasMaximizeBox() const { return bHasMaximizeButton; }
		bool HasMinimizeBox() const { return bHasMinimizeButton; }

		ESizingRule GetSizingRule() const { return SizingRule; }

	private:
		const FWindowStyle* Style = nullptr;
		TAttribute<FText> Title;
		ESizingRule SizingRule = ESizingRule::UserSized;
		bool bHasCloseButton = true;
		bool bHasMaximizeButton = true;
		bool bHasMinimizeButton = true;
		TSharedPtr<IWindowTitleBar> TitleBar;
		/** The slot the content sits in, under the title bar. */
		SVerticalBox::FSlot* ContentSlot = nullptr;
};
