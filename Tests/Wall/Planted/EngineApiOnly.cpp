// Product code as it may be written: engine headers only, engine API only.
#include "CoreMinimal.h"
#include "Misc/Paths.h"
#include "ToolMenus.h"

void PlantedEngineApiCall()
{
	UToolMenus::UnRegisterStartupCallback(static_cast<const void*>(nullptr));
	(void)FPaths::GetProjectFilePath();
}
