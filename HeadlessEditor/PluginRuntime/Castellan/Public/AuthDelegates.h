#pragma once

#include "CoreMinimal.h"
#include "Delegates/Delegate.h"

/** Events of the plugin's licensing and update service. */
class CASTELLAN_API AuthDelegates
{
public:
	/** A newer version of the plugin can be downloaded: its display version and download address. */
	DECLARE_MULTICAST_DELEGATE_TwoParams(FOnUpgradeAvailable, FString, FString);
	static FOnUpgradeAvailable OnUpgradeAvailable;
};
