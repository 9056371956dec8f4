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

/** Where a pop-up menu opens relative to the widget that summons it. */
enum EMenuPlacement : int
{
	/** Place the menu immediately below the anchor */
	MenuPlacement_BelowAnchor,
	/** Place the menu immediately centered below the anchor */
	MenuPlacement_CenteredBelowAnchor,
	/** Place the menu immediately below the anchor and match is right edge */
	MenuPlacement_BelowRightAnchor,
	/** Place the menu immediately below the anchor and match the width to the anchor's content */
	MenuPlacement_ComboBox,
	/** Place the menu immediately below the anchor and match the width to the anchor's content. If the width overflows, align with the right edge of the anchor. */
	MenuPlacement_ComboBoxRight,
	/** Place the menu to the right of the anchor */
	MenuPlacement_MenuRight,
	/** Place the menu immediately above the anchor, not transition effect */
	MenuPlacement_AboveAnchor,
	/** Place the menu immediately centered above the anchor */
	MenuPlacement_CenteredAboveAnchor,
	/** Place the menu immediately above the anchor and match is right edge */
	MenuPlacement_AboveRightAnchor,
	/** Place the menu to the left of the anchor */
	MenuPlacement_MenuLeft,
	/** Place the menu centered on the anchor */
	MenuPlacement_Center,
	/** Place the menu to the right of the anchor and match the bottom left of both */
	MenuPlacement_RightLeftCenter,
	/** Place the menu immediately below the anchor and match left and bottom of the anchor */
	MenuPlacement_MatchBottomLeft,
};
