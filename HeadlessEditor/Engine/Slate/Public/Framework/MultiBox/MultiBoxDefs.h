#pragma once

#include "CoreMinimal.h"
#include "Styling/ISlateStyle.h"

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

/** Where a block sits in a group of blocks drawn as one, such as a row of toolbar buttons. */
namespace EMultiBlockLocation
{
	enum Type
	{
		/** Default, either no other blocks in group or grouping style is disabled */
		None = -1,
		/** Denotes the beginning of a group, currently left most first */
		Start,
		/** Denotes a middle block(s) of a group */
		Middle,
		/** Denotes the end of a group, currently the right most */
		End,
	};

	/** returns the passed in style with the addition of the location information */
	static FName ToName(FName StyleName, Type InLocation)
	{
		switch (InLocation)
		{
			case Start:
				return ISlateStyle::Join(StyleName, ".Start");
			case Middle:
				return ISlateStyle::Join(StyleName, ".Middle");
			case End:
				return ISlateStyle::Join(StyleName, ".End");
			default:
				return StyleName;
		}
	}
}

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
