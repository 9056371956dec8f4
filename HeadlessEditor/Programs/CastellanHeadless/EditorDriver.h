#pragma once

#include "CoreMinimal.h"
#include "CreateResult.h"

/** Uses the running headless editor as a user does, and reads back what it then holds. */
namespace CastellanEditorDriver
{
	/**
	 * Opens the wizard, fills it in (pick, tick, type), presses Create and reads the outcome from
	 * what the wizard shows, what the editor reported meanwhile and what the level then holds.
	 */
	FCreateResult CreateLivestream(const FLivestreamWizardInputs& Inputs);
}
