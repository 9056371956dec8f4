#pragma once

#include "CoreMinimal.h"
#include "Misc/Attribute.h"
#include "ToolMenuEntry.h"
#include "ToolMenuOwner.h"

#include "ToolMenuSection.generated.h"

/** A named group of entries in a menu. */
USTRUCT(BlueprintType)
struct TOOLMENUS_API FToolMenuSection
{
	GENERATED_BODY()

public:
	FToolMenuEntry& AddEntry(const FToolMenuEntry& Args);
	FToolMenuEntry* FindEntry(const FName InName);

	FName Name;
	TAttribute<FText> Label;
	TArray<FToolMenuEntry> Blocks;
	FToolMenuOwner Owner;
};
