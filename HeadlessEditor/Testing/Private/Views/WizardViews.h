#pragma once

#include "CoreMinimal.h"
#include "Views/EditorView.h"

/** The Livestream Wizard's tab: fresh or filled in, refusing, and its done page after a create and after a failure. */
TArray<FEditorView> MakeLivestreamWizardViews();
