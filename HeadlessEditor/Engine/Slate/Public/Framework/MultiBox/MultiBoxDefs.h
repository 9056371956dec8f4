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

/** Names a multi-box whose layout the user may customize, so that the customization can be saved. */
struct SLATE_API FMultiBoxCustomization
{
	static const FMultiBoxCustomization None;

	static FMultiBoxCustomization AllowCustomization(FName InCustomizationName)
	{
		ensure(InCustomizationName != NAME_None);
		return FMultiBoxCustomization(InCustomizationName);
	}

	FName GetCustomizationName() const { return CustomizationName; }

	FMultiBoxCustomization(FName InCustomizationName)
		: CustomizationName(InCustomizationName)
	{
	}

private:
	/** The Name of the customization that uniquely identifies the multibox for saving and loading users data*/
	FName CustomizationName;
};
