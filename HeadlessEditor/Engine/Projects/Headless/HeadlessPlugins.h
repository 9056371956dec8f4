#pragma once

#include "CoreMinimal.h"
#include "PluginDescriptor.h"

/**
 * Headless editor only: the plugins that the plugin manager knows, as the editor would have found
 * them on disk at start-up.
 */
namespace UE::Headless
{
	PROJECTS_API void MountPlugin(const FString& Name, const FString& BaseDir, const FPluginDescriptor& Descriptor);
	PROJECTS_API void UnmountAllPlugins();
}
