#pragma once

#include "CoreMinimal.h"

/** Manages the current project's descriptor: its enabled plugins and its file on disk. */
class IProjectManager
{
public:
	virtual ~IProjectManager() {}

	static PROJECTS_API IProjectManager& Get();

	/** Enables or disables a plugin in the current project's descriptor; false with a reason on failure. */
	virtual bool SetPluginEnabled(const FString& PluginName, bool bEnabled, FText& OutFailReason) = 0;

	/** Whether the project descriptor has changes not yet saved. */
	virtual bool IsCurrentProjectDirty() const = 0;

	/** Writes the project descriptor to disk; false with a reason on failure. */
	virtual bool SaveCurrentProjectToDisk(FText& OutFailReason) = 0;
};
