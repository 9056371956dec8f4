#pragma once

#include "CoreMinimal.h"

/** Which modifier keys were down when an input event happened. */
class FModifierKeysState
{
public:
	FModifierKeysState(const bool bInIsLeftShiftDown, const bool bInIsRightShiftDown, const bool bInIsLeftControlDown, const bool bInIsRightControlDown, const bool bInIsLeftAltDown, const bool bInIsRightAltDown, const bool bInIsLeftCommandDown, const bool bInIsRightCommandDown, const bool bInAreCapsLocked)
		: bIsLeftShiftDown(bInIsLeftShiftDown)
		, bIsRightShiftDown(bInIsRightShiftDown)
		, bIsLeftControlDown(bInIsLeftControlDown)
		, bIsRightControlDown(bInIsRightControlDown)
		, bIsLeftAltDown(bInIsLeftAltDown)
		, bIsRightAltDown(bInIsRightAltDown)
		, bIsLeftCommandDown(bInIsLeftCommandDown)
		, bIsRightCommandDown(bInIsRightCommandDown)
		, bAreCapsLocked(bInAreCapsLocked)
	{
	}

	FModifierKeysState()
		: FModifierKeysState(false, false, false, false, false, false, false, false, false)
	{
	}

	bool IsShiftDown() const { return bIsLeftShiftDown || bIsRightShiftDown; }
	bool IsControlDown() const { return bIsLeftControlDown || bIsRightControlDown; }
	bool IsAltDown() const { return bIsLeftAltDown || bIsRightAltDown; }
	bool IsCommandDown() const { return bIsLeftCommandDown || bIsRightCommandDown; }
	bool AreCapsLocked() const { return bAreCapsLocked; }

private:
	bool bIsLeftShiftDown;
	bool bIsRightShiftDown;
	bool bIsLeftControlDown;
	bool bIsRightControlDown;
	bool bIsLeftAltDown;
	bool bIsRightAltDown;
	bool bIsLeftCommandDown;
	bool bIsRightCommandDown;
	bool bAreCapsLocked;
};
