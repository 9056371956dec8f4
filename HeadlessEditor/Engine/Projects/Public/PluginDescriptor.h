#pragma once

#include "CoreMinimal.h"

/** What a plugin's .uplugin file declares. */
struct PROJECTS_API FPluginDescriptor
{
	int32 Version = 0;
	FString VersionName;
	FString FriendlyName;
	FString Description;
	FString Category;
	FString CreatedBy;
	FString CreatedByURL;
	FString DocsURL;
	FString MarketplaceURL;
	FString SupportURL;
	FString EngineVersion;
	bool bCanContainContent = false;
	bool bIsBetaVersion = false;
	bool bInstalled = false;
};
