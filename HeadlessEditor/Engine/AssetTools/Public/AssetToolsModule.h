#pragma once

#include "CoreMinimal.h"
#include "IAssetTools.h"
#include "Modules/ModuleInterface.h"

/** The module that owns the asset tools. */
class ASSETTOOLS_API FAssetToolsModule : public IModuleInterface
{
public:
	virtual void StartupModule() override;
	virtual void ShutdownModule() override;

	virtual IAssetTools& Get() const;

	static FAssetToolsModule& GetModule();
	static bool IsModuleLoaded();
};
