#pragma once

#include "CoreMinimal.h"
#include "InputCoreTypes.h"

/** A key with its modifier keys, as a command's shortcut. */
struct SLATE_API FInputChord
{
	FInputChord();
	FInputChord(const FKey InKey, bool bInShift = false, bool bInCtrl = false, bool bInAlt = false, bool bInCmd = false);

	/** Whether a key is set: an empty chord is no shortcut at all. */
	bool IsValidChord() const;

	/** The chord as menus show it, e.g. "Ctrl+Shift+S"; empty when no key is set. */
	FText GetInputText(const bool bLongDisplayName = true) const;

	bool operator==(const FInputChord& Other) const;
	bool operator!=(const FInputChord& Other) const { return !(*this == Other); }

	FKey Key;
	uint32 bShift : 1;
	uint32 bCtrl : 1;
	uint32 bAlt : 1;
	uint32 bCmd : 1;
};
