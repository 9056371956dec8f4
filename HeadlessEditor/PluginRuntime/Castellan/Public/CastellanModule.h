#pragma once

#include "CoreMinimal.h"
#include "Modules/ModuleInterface.h"

/** The plugin's core runtime module. */
class FCastellanModule : public IModuleInterface
{
public:
	virtual void StartupModule() override;
	virtual void ShutdownModule() override;

	/** Whether the runtime suggests loading the engine's "HardwareEncoders" plugin. */
	static CASTELLAN_API bool SuggestLoadingHardwareEncodersPlugin();

	/** Whether the "HardwareEncoders" plugin was enabled in this run and needs an editor restart. */
	static CASTELLAN_API bool IsHardwareEncodersPluginPendingRestart();

	/** Records that enabling the "HardwareEncoders" plugin awaits an editor restart. */
	static CASTELLAN_API void SetHardwareEncodersPendingRestart();
};
