#pragma once

#include "CoreMinimal.h"
#include "UObject/WeakObjectPtr.h"
#include "UObject/WeakObjectPtrTemplates.h"

class AActor;
class FViewport;

/** What the level editor module would hold in the engine: the active viewport and the floating details panels. */
struct FHeadlessLevelEditorState
{
	FViewport* ActiveViewport = nullptr;
	int32 RedrawAllViewportsCount = 0;
	TArray<TWeakObjectPtr<AActor>> FloatingPropertyWindowsActors;
	int32 FloatingPropertyWindowsUpdateCount = 0;

	static FHeadlessLevelEditorState& Get();
};
