#pragma once

#include "CoreMinimal.h"
#include "Modules/ModuleInterface.h"
#include "Modules/ModuleManager.h"

/** Creates and maintains game projects: templates, new classes, the project file. */
class FGameProjectGenerationModule : public IModuleInterface
{
public:
	virtual void StartupModule();
	virtual void ShutdownModule();

	static inline FGameProjectGenerationModule& Get()
	{
		static const FName ModuleName = "GameProjectGeneration";
		return FModuleManager::LoadModuleChecked<FGameProjectGenerationModule>(ModuleName);
	}

	/** Asks source control (or the file system) to make the project file writeable, if it is not. */
	virtual void TryMakeProjectFileWriteable(const FString& ProjectFile);
};
