#pragma once

#include "CoreMinimal.h"
#include "Math/IntPoint.h"
#include "Misc/Optional.h"

class SDockTab;
class SWidget;

/** What a user fills into the Livestream Wizard before pressing Create. */
struct FLivestreamWizardInputs
{
	/** The capture type to pick; unset keeps the wizard's own selection. */
	TOptional<FString> Capture;
	/** The captions of the outputs to tick. */
	TArray<FString> Outputs;
	/** The name to type; unset leaves the name box alone. */
	TOptional<FString> Name;
};

enum class ELivestreamWizardOutcome
{
	/** The done page reports the setup built. */
	Created,
	/** The wizard stayed on its steps with warning lines. */
	Refused,
	/** The done page reports an error. */
	Failed
};

/** What the wizard shows after Create was pressed, read as a user reads it. */
struct FLivestreamWizardResult
{
	ELivestreamWizardOutcome Outcome = ELivestreamWizardOutcome::Refused;
	/** The done page's result line (created or failed). */
	FString DoneText;
	/** The warning lines shown under the steps (refused). */
	TArray<FString> Warnings;
};

/** Uses the Livestream Wizard as a user does: opens its tab, fills it in, presses Create, reads the outcome. */
class HEADLESSTESTING_API FLivestreamWizardDriver
{
public:
	/** Opens the wizard's tab from the plugin's toolbar button: its drop-down, then "Livestream Wizard". */
	static TSharedRef<SDockTab> OpenFromToolbar();

	/** The size the tab is drawn at, docked beside the viewport: wide enough for the description, tall enough for every step with its warnings. */
	static FIntPoint GetDockedTabSize();

	/** Picks the capture type, ticks the outputs (leaving ticked ones alone), then types the name and moves on. */
	static void FillIn(const TSharedRef<SWidget>& Wizard, const FLivestreamWizardInputs& Inputs);

	/** Clicks Create. @return whether it could be clicked (shown and enabled). */
	static bool PressCreate(const TSharedRef<SWidget>& Wizard);

	/** Reads the outcome of the last Create: still on the steps with warnings, or a done page in white or red. */
	static FLivestreamWizardResult ReadResult(const TSharedRef<SWidget>& Wizard);
};
