#pragma once

#include "CoreMinimal.h"

/** How a widget lines up horizontally within its slot. */
enum EHorizontalAlignment : int
{
	HAlign_Fill = 0,
	HAlign_Left = 1,
	HAlign_Center = 2,
	HAlign_Right = 3,
};

/** How a widget lines up vertically within its slot. */
enum EVerticalAlignment : int
{
	VAlign_Fill = 0,
	VAlign_Top = 1,
	VAlign_Center = 2,
	VAlign_Bottom = 3,
};

/** The direction a panel lays its children out in. */
enum EOrientation : int
{
	Orient_Horizontal,
	Orient_Vertical,
};

/** How a selection change came about. */
namespace ESelectInfo
{
	enum Type : int
	{
		/** Selection set by a key press. */
		OnKeyPress,
		/** Selection set by navigation. */
		OnNavigation,
		/** Selection set by a mouse click. */
		OnMouseClick,
		/** Selection set directly by code. */
		Direct
	};
}

/** How the user committed a text edit. */
namespace ETextCommit
{
	enum Type : int
	{
		/** Losing focus or similar event caused implicit commit. */
		Default,
		/** User pressed enter. */
		OnEnter,
		/** User changed focus. */
		OnUserMovedFocus,
		/** Keyboard focus was explicitly cleared. */
		OnCleared
	};
}
