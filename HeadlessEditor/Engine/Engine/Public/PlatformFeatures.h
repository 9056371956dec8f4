#pragma once

#include "CoreMinimal.h"
#include "Modules/ModuleInterface.h"

class ISaveGameSystem;

/** The platform's features: its save-game system and the like. */
class ENGINE_API IPlatformFeaturesModule : public IModuleInterface
{
public:
	/** The features of the platform the editor runs on. */
	static IPlatformFeaturesModule& Get();

	/** The platform's save-game system, or null if it has none. */
	virtual class ISaveGameSystem* GetSaveGameSystem();
};
