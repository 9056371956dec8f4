#pragma once

#include "CoreMinimal.h"

/** Builds the text that the command-line program prints about the running headless editor. */
namespace CastellanReport
{
	/** What the editor module registered: style set, tabs, toolbar entries, customisations. */
	FString DescribeRegistrations();

	/** The toolbar button and its drop-down menu as a user sees them when opening it. */
	FString DescribeToolbarMenu();

	/** The level's actors, with what the wizard wrote into them, and the wizard's assets. */
	FString DescribeLevelAndAssets();
}
