#pragma once

#include "CoreMinimal.h"
#include "Views/EditorView.h"

/** The details panel of the plugin's actors and components: sender pickers, screen capture sources, media output controls, show flags. */
TArray<FEditorView> MakeDetailsViews();
