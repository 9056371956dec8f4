#pragma once

#include "CoreMinimal.h"
#include "GenericPlatform/GenericPlatformMisc.h"

class SWidget;

/** Headless editor only: the message boxes FMessageDialog::Open would have shown in the editor. */
namespace UE::Headless
{
	/**
	 * The modal window the editor shows for a message box: titled OptTitle ("Message" when none, as
	 * FMessageDialog::Open titles it), with the warning sign, the message wrapped at 512 slate units,
	 * a "Copy Message" link and the buttons of MessageType (Ok shows one primary "OK" button).
	 * Pass the fields of a dialog recorded by UE::Headless::GetShownMessageDialogs().
	 */
	UNREALED_API TSharedRef<SWidget> MakeMessageDialogWidget(EAppMsgType::Type MessageType, const FText& Message, const FText* OptTitle = nullptr);
}
