#pragma once

#include "CoreMinimal.h"

/** Whether a widget is shown and whether it takes part in hit-testing. */
struct SLATECORE_API EVisibility
{
	/** Visible and hit-testable (can interact with cursor). */
	static const EVisibility Visible;
	/** Not visible and takes up no space in the layout. */
	static const EVisibility Collapsed;
	/** Not visible but occupies layout space. */
	static const EVisibility Hidden;
	/** Visible to the user, but only as art: the widget and its children ignore the cursor. */
	static const EVisibility HitTestInvisible;
	/** Visible to the user, but only as art: the widget ignores the cursor, its children do not. */
	static const EVisibility SelfHitTestInvisible;
	/** Any visibility, for filtering. */
	static const EVisibility All;

	EVisibility()
		: Value(VIS_Visible)
	{
	}

	bool operator==(const EVisibility& Other) const { return this->Value == Other.Value; }
	bool operator!=(const EVisibility& Other) const { return this->Value != Other.Value; }

	bool AreChildrenHitTestVisible() const { return 0 != (Value & VISPRIVATE_ChildrenHitTestVisible); }
	bool IsHitTestVisible() const { return 0 != (Value & VISPRIVATE_SelfHitTestVisible); }
	bool IsVisible() const { return 0 != (Value & VIS_Visible); }

	FString ToString() const;

	/** Whether a widget of the given visibility is among those the filter lets through. */
	static bool DoesVisibilityPassFilter(const EVisibility InVisibility, const EVisibility InVisibilityFilter) { return 0 != (InVisibility.Value & InVisibilityFilter.Value); }

private:
	enum Private
	{
		VISPRIVATE_Visible = 0x1 << 0,
		VISPRIVATE_Collapsed = 0x1 << 1,
		VISPRIVATE_Hidden = 0x1 << 2,
		VISPRIVATE_SelfHitTestVisible = 0x1 << 3,
		VISPRIVATE_ChildrenHitTestVisible = 0x1 << 4,

		VIS_Visible = VISPRIVATE_Visible | VISPRIVATE_SelfHitTestVisible | VISPRIVATE_ChildrenHitTestVisible,
		VIS_Collapsed = VISPRIVATE_Collapsed,
		VIS_Hidden = VISPRIVATE_Hidden,
		VIS_HitTestInvisible = VISPRIVATE_Visible,
		VIS_SelfHitTestInvisible = VISPRIVATE_Visible | VISPRIVATE_ChildrenHitTestVisible,

		VIS_All = VISPRIVATE_Visible | VISPRIVATE_Hidden | VISPRIVATE_Collapsed | VISPRIVATE_SelfHitTestVisible | VISPRIVATE_ChildrenHitTestVisible
	};

	EVisibility(Private InValue)
		: Value(InValue)
	{
	}

	Private Value;
};
