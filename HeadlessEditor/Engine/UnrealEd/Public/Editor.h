#pragma once

#include "CoreMinimal.h"
#include "Editor/EditorEngine.h"

/** The editor engine; null when the editor is not running. */
extern UNREALED_API class UEditorEngine* GEditor;
