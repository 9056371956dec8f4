#pragma once

#include "CoreTypes.h"
#include "GenericPlatform/GenericPlatformMisc.h"
#include "Internationalization/Text.h"

/** A modal message box. */
struct CORE_API FMessageDialog
{
	/** Shows the message and waits for a button; the default button is the first one of the box. */
	static EAppReturnType::Type Open(EAppMsgType::Type MessageType, const FText& Message, const FText* OptTitle = nullptr);
	static EAppReturnType::Type Open(EAppMsgType::Type MessageType, EAppReturnType::Type DefaultValue, const FText& Message, const FText* OptTitle = nullptr);
};
