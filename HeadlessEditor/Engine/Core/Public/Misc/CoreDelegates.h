#pragma once

#include "CoreTypes.h"
#include "Delegates/Delegate.h"

class CORE_API FCoreDelegates
{
public:
	/** Broadcast when the engine loop has finished initialising, after the last module phase loaded. */
	static FSimpleMulticastDelegate OnFEngineLoopInitComplete;
	/** Broadcast once the engine has been initialised. */
	static FSimpleMulticastDelegate OnPostEngineInit;
	/** Broadcast when the editor or game is about to exit. */
	static FSimpleMulticastDelegate OnPreExit;
};
