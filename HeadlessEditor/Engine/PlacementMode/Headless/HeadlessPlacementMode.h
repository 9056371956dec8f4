#pragma once

#include "CoreMinimal.h"

class SWidget;

/** Headless editor only: what tests read about the placement mode module, and its panel as the editor shows it. */
namespace UE::Headless
{
	/** How many times the module has started in this process. */
	PLACEMENTMODE_API int32 GetPlacementModeStartupCount();

	/**
	 * The "Place Actors" tab's content as the editor draws it in its tab: the search box, a tab per
	 * registered category, and the items of ActiveCategory, as when the user has clicked its tab (the
	 * panel's own first choice when NAME_None). Typing in its search box filters nothing here.
	 */
	PLACEMENTMODE_API TSharedRef<SWidget> MakePlacementPanel(FName ActiveCategory = NAME_None);
}
