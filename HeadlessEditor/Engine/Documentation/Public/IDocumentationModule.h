#pragma once

#include "CoreMinimal.h"
#include "Modules/ModuleInterface.h"
#include "Modules/ModuleManager.h"

class IDocumentation;

/** The module that serves the editor's documentation pages and tooltips. */
class IDocumentationModule : public IModuleInterface
{
public:
	static inline IDocumentationModule& Get()
	{
		return FModuleManager::LoadModuleChecked<IDocumentationModule>("Documentation");
	}

	static inline bool IsAvailable()
	{
		return FModuleManager::Get().IsModuleLoaded("Documentation");
	}

	virtual class TSharedRef<class IDocumentation> GetDocumentation() const = 0;
};
