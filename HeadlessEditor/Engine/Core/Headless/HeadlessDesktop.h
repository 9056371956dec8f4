#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "CoreTypes.h"
#include "GenericPlatform/GenericPlatformMisc.h"
#include "Internationalization/Text.h"
#include "Misc/Optional.h"

/**
 * Headless editor only: what would have reached the desktop (browser launches, message boxes),
 * recorded instead of shown.
 */
namespace UE::Headless
{
	/** One message box as the user would have seen it. */
	struct FShownMessageDialog
	{
		EAppMsgType::Type MessageType = EAppMsgType::Ok;
		FText Message;
		TOptional<FText> Title;
	};

	/** Every address passed to FPlatformProcess::LaunchURL, in order, with its parameters. */
	CORE_API const TArray<FString>& GetLaunchedURLs();
	/** Every message box opened, in order. */
	CORE_API const TArray<FShownMessageDialog>& GetShownMessageDialogs();
	/** Forgets the launches and message boxes recorded so far. */
	CORE_API void ResetDesktop();
}
