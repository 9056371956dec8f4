#pragma once

#include "CoreMinimal.h"

/** The kinds of multi-box: menus, menu bars and toolbars. */
enum class EMultiBoxType : uint8
{
	MenuBar,
	ToolBar,
	VerticalToolBar,
	SlimHorizontalToolBar,
	UniformToolBar,
	Menu,
	ButtonRow,
	ToolMenuBar,
	SlimHorizontalUniformToolBar,
};

/** The kinds of block a multi-box holds. */
enum class EMultiBlockType : uint8
{
	None = 0,
	ButtonRow,
	EditableText,
	Heading,
	MenuEntry,
	Separator,
	ToolBarButton,
	ToolBarComboButton,
	Widget,
};
