// Product code calling a member the engine's class does not have.
#include "CoreMinimal.h"
#include "ToolMenus.h"

bool PlantedHeadlessOnlyCall()
{
	return UToolMenus::HasStartupCallbackFor(nullptr);
}
