#pragma once

#include "CoreMinimal.h"

class FNotifyHook;

/** What a details view is created with. */
struct FDetailsViewArgs
{
	/** Names the view so that it can be found again; none for a view nobody looks up. */
	FName ViewIdentifier;
	/** Told before and after every property change made through the view. */
	FNotifyHook* NotifyHook;
	/** The share of a row's width the value column takes, from 0 to 1. */
	float ColumnWidth;
	/** The narrowest the column right of the values may be, in slate units. */
	float RightColumnMinWidth;
	/** Whether the view shows a scroll bar when its rows are taller than it is. */
	bool bShowScrollBar : 1;

public:
	FDetailsViewArgs()
		: ViewIdentifier(NAME_None)
		, NotifyHook(nullptr)
		, ColumnWidth(.6f)
		, RightColumnMinWidth(22)
		, bShowScrollBar(true)
	{
	}
};
