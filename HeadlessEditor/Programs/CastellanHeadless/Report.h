#pragma once

#include "CoreMinimal.h"
#include "CreateResult.h"

/**
 * Builds the text that the command-line program prints about the running headless editor. Every
 * text that comes from the editor is escaped as FPrintableText does, so that it shows as text.
 */
namespace CastellanReport
{
	/** What the editor module registered: style set, tabs, toolbar entries, customisations. */
	FString DescribeRegistrations();

	/** The toolbar button and its drop-down menu as a user sees them when opening it. */
	FString DescribeToolbarMenu();

	/** The wizard after pressing Create, the level with what the wizard wrote into it, the wizard's assets and the undo history. */
	FString DescribeCreateResult(const FCreateResult& Result);

	/** Why the wizard built nothing, in plain words: a first line, then one indented line per reason. */
	FString DescribeFailure(const FCreateResult& Result);
}
