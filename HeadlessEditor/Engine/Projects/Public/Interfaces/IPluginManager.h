#pragma once

#include "CoreMinimal.h"
#include "Containers/StringView.h"
#include "PluginDescriptor.h"

/** A plugin known to the plugin manager. */
class IPlugin : public TSharedFromThis<IPlugin>
{
public:
	virtual ~IPlugin() {}

	virtual const FString& GetName() const = 0;
	virtual const FString& GetFriendlyName() const = 0;
	virtual FString GetBaseDir() const = 0;
	virtual FString GetContentDir() const = 0;
	virtual bool IsEnabled() const = 0;
	virtual const FPluginDescriptor& GetDescriptor() const = 0;
};

/** Finds the plugins of the project and the engine. */
class IPluginManager
{
public:
	virtual ~IPluginManager() {}

	virtual TSharedPtr<IPlugin> FindPlugin(const FStringView Name) = 0;
	virtual TSharedPtr<IPlugin> FindPlugin(const ANSICHAR* Name) = 0;
	virtual TArray<TSharedRef<IPlugin>> GetEnabledPlugins() = 0;

	static PROJECTS_API IPluginManager& Get();
};
