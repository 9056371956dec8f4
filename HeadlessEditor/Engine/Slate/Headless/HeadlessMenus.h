#pragma once

#include "CoreMinimal.h"
#include "Framework/Commands/UICommandInfo.h"
#include "Styling/SlateTypes.h"
#include "Textures/SlateIcon.h"

class SWidget;

/** Headless editor only: a menu read back as a user sees it when it opens. */
namespace UE::Headless
{
	enum class EMenuLineKind : uint8
	{
		Heading,
		Entry,
		Separator,
	};

	/** One line of an open menu; texts, check and enabled states are evaluated at read time. */
	struct FMenuLine
	{
		EMenuLineKind Kind = EMenuLineKind::Entry;
		FName ExtensionHook;
		FText Label;
		FText ToolTip;
		FSlateIcon Icon;
		FName CommandName;
		EUserInterfaceActionType Type = EUserInterfaceActionType::None;
		ECheckBoxState CheckState = ECheckBoxState::Unchecked;
		bool bEnabled = true;
	};

	/** Whether the widget shows a menu built by a multi-box builder. */
	SLATE_API bool IsMenuWidget(const TSharedRef<SWidget>& Widget);
	/** The lines of a menu widget, in order. */
	SLATE_API TArray<FMenuLine> ReadMenu(const TSharedRef<SWidget>& MenuWidget);
	/** The height the menu may grow to, if limited. */
	SLATE_API TOptional<float> GetMenuMaxHeight(const TSharedRef<SWidget>& MenuWidget);
	/** Clicks the entry labelled Label, as a user would: only an enabled entry runs. @return whether it ran. */
	SLATE_API bool ClickMenuEntry(const TSharedRef<SWidget>& MenuWidget, const FString& Label);
	/** The menu as text, one line per block: headings, entries with their type and check state. */
	SLATE_API FString DescribeMenu(const TSharedRef<SWidget>& MenuWidget);

	/** The pop-up window a menu opens in: the menu's background and outline around the content. */
	SLATE_API TSharedRef<SWidget> MakeMenuWindow(const TSharedRef<SWidget>& MenuContent);

	/**
	 * Root as a window shows it with its menus open: each open menu anchor in it (a combo button,
	 * a sub-menu entry) has its drop-down drawn in a menu window where the editor opens it, below the
	 * anchor or to its right, above everything else; menus opened inside those are drawn too.
	 */
	SLATE_API TSharedRef<SWidget> MakePopupLayer(const TSharedRef<SWidget>& Root);

	/**
	 * The menu windows a layer made by MakePopupLayer drew over its content when last painted, in the
	 * order drawn (a sub-menu after the menu it opened from), laid out where they were drawn; empty for
	 * any other widget.
	 */
	SLATE_API TArray<TSharedRef<SWidget>> GetDrawnPopupWindows(const TSharedRef<SWidget>& Widget);
}
