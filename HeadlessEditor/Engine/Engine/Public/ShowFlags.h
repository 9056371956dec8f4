#pragma once

#include "CoreMinimal.h"

/** How a set of show flags starts out. */
enum EShowFlagInitMode
{
	ESFIM_Game,
	ESFIM_Editor,
	ESFIM_VREditing,
	ESFIM_All0
};

/** The switches of what a view renders. The flag table itself comes with the view's show flags. */
struct ENGINE_API FEngineShowFlags
{
	FEngineShowFlags(EShowFlagInitMode InitMode)
		: InitMode(InitMode)
	{
	}

	EShowFlagInitMode InitMode;
};
