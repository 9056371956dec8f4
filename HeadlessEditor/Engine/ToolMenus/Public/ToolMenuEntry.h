#pragma once

#include "CoreMinimal.h"
#include "ToolMenuOwner.h"

#include "ToolMenuEntry.generated.h"

/** One entry of a menu section. */
USTRUCT(BlueprintType)
struct TOOLMENUS_API FToolMenuEntry
{
	GENERATED_BODY()

	FToolMenuEntry();

	FName Name;
	FToolMenuOwner Owner;
	FName TutorialHighlightName;
	FName StyleNameOverride;
};
