#pragma once

#include "CoreMinimal.h"
#include "Editor/EditorEngine.h"
#include "Misc/NotifyHook.h"
#include "UObject/ObjectMacros.h"
#include "UnrealEdEngine.generated.h"

/** The editor engine of the full editor application. */
UCLASS(config = Engine, transient)
class UNREALED_API UUnrealEdEngine : public UEditorEngine, public FNotifyHook
{
	GENERATED_UCLASS_BODY()
};
