#pragma once

#include "CoreMinimal.h"
#include "Modules/ModuleInterface.h"
#include "Modules/ModuleManager.h"

/** The tool-menus module: the editor's registry of menus and toolbars. */
class IToolMenusModule : public IModuleInterface
{
public:
	static inline IToolMenusModule& Get()
	{
		return FModuleManager::LoadModuleChecked<IToolMenusModule>(TEXT("ToolMenus"));
	}

	static inline bool IsAvailable()
	{
		return FModuleManager::Get().IsModuleLoaded(TEXT("ToolMenus"));
	}
};
