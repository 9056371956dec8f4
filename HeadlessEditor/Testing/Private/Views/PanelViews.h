#pragma once

#include "CoreMinimal.h"
#include "Views/EditorView.h"

/**
 * What the module adds around the wizard: the toolbar button's drop-down, the version message box,
 * the update notification, the placement category and the new-asset menu entry.
 */
TArray<FEditorView> MakePanelViews();
