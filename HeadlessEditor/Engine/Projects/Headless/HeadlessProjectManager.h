#pragma once

#include "CoreMinimal.h"

/**
 * Headless editor only: how the project manager answers, and what was asked of it. There is no
 * project file; enabling a plugin marks the descriptor dirty, saving cleans it.
 */
namespace UE::Headless
{
	struct FProjectManagerState
	{
		/** When set, SetPluginEnabled fails with this reason and changes nothing. */
		TOptional<FText> PluginEnableFailure;
		/** When set, SaveCurrentProjectToDisk fails with this reason and the descriptor stays dirty. */
		TOptional<FText> SaveFailure;
		/** Whether the descriptor has unsaved changes. */
		bool bProjectDirty = false;
		/** The plugins enabled in the descriptor, in the order they were enabled. */
		TArray<FString> EnabledPlugins;
		int32 SaveCount = 0;
	};

	PROJECTS_API FProjectManagerState& GetProjectManagerState();
	/** Back to a clean descriptor with no plugins and no failures. */
	PROJECTS_API void ResetProjectManager();
}
