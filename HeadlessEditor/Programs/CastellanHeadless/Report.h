#pragma once

#include "CoreMinimal.h"

/** Builds the text that the command-line program prints about the running headless editor. */
namespace CastellanReport
{
	/** What the editor module registered: style set, tabs, toolbar entries, customisations. */
	FString DescribeRegistrations();
}
