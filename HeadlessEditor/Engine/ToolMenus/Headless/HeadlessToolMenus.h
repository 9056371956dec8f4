#pragma once

#include "CoreMinimal.h"

class FUIAction;
struct FToolMenuEntry;

/** Headless editor only: what the menu system holds that no window shows. */
namespace UE::Headless
{
	/** Whether a start-up callback bound to this object still waits for the menus to be ready. */
	TOOLMENUS_API bool HasToolMenusStartupCallbackFor(const void* UserPointer);
	/** The action a menu or toolbar entry runs when clicked, as the menu builder gets it; null if it has none. */
	TOOLMENUS_API const FUIAction* GetToolMenuEntryAction(const FToolMenuEntry& Entry);
}
