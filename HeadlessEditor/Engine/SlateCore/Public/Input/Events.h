#pragma once

#include "CoreMinimal.h"
#include "GenericPlatform/GenericApplication.h"
#include "InputCoreTypes.h"

/** Why keyboard focus moved. */
enum class EFocusCause : uint8
{
	/** Focus was changed because of a mouse action. */
	Mouse,
	/** Focus was changed in response to a navigation, such as the arrow keys, TAB key, controller DPad, ... */
	Navigation,
	/** Focus was changed because someone asked the application to change it. */
	SetDirectly,
	/** Focus was explicitly cleared via the escape key or other similar action. */
	Cleared,
	/** Focus was changed because another widget lost focus, and focus moved to a new widget. */
	OtherWidgetLostFocus,
	/** Focus was set in response to the owning window being activated. */
	WindowActivate,
};

/** Why and for which user keyboard focus moved. */
struct FFocusEvent
{
public:
	FFocusEvent()
		: Cause(EFocusCause::SetDirectly)
		, UserIndex(0)
	{
	}

	FFocusEvent(const EFocusCause InCause, uint32 InUserIndex)
		: Cause(InCause)
		, UserIndex(InUserIndex)
	{
	}

	EFocusCause GetCause() const { return Cause; }
	uint32 GetUser() const { return UserIndex; }

private:
	EFocusCause Cause;
	uint32 UserIndex;
};

/** The base of every input event: modifier keys, user and repeat flag. */
struct FInputEvent
{
public:
	FInputEvent()
		: ModifierKeys(FModifierKeysState())
		, bIsRepeat(false)
		, UserIndex(0)
	{
	}

	FInputEvent(const FModifierKeysState& InModifierKeys, const int32 InUserIndex, const bool bInIsRepeat)
		: ModifierKeys(InModifierKeys)
		, bIsRepeat(bInIsRepeat)
		, UserIndex(InUserIndex)
	{
	}

	virtual ~FInputEvent() = default;

	bool IsRepeat() const { return bIsRepeat; }
	bool IsShiftDown() const { return ModifierKeys.IsShiftDown(); }
	bool IsControlDown() const { return ModifierKeys.IsControlDown(); }
	bool IsAltDown() const { return ModifierKeys.IsAltDown(); }
	bool IsCommandDown() const { return ModifierKeys.IsCommandDown(); }
	const FModifierKeysState& GetModifierKeys() const { return ModifierKeys; }
	uint32 GetUserIndex() const { return UserIndex; }

protected:
	FModifierKeysState ModifierKeys;
	bool bIsRepeat;
	uint32 UserIndex;
};

/** A key going down or up, sent to the focused widget and bubbled to its ancestors. */
struct FKeyEvent : public FInputEvent
{
public:
	FKeyEvent()
		: FInputEvent(FModifierKeysState(), 0, false)
		, Key()
		, CharacterCode(0)
		, KeyCode(0)
	{
	}

	FKeyEvent(const FKey InKey, const FModifierKeysState& InModifierKeys, const uint32 InUserIndex, const bool bInIsRepeat, const uint32 InCharacterCode, const uint32 InKeyCode)
		: FInputEvent(InModifierKeys, InUserIndex, bInIsRepeat)
		, Key(InKey)
		, CharacterCode(InCharacterCode)
		, KeyCode(InKeyCode)
	{
	}

	/** Returns the name of the key for this event. */
	FKey GetKey() const { return Key; }
	uint32 GetCharacter() const { return CharacterCode; }
	uint32 GetKeyCode() const { return KeyCode; }

private:
	FKey Key;
	uint32 CharacterCode;
	uint32 KeyCode;
};

/** A character typed while a widget has keyboard focus, sent to it and bubbled to its ancestors. */
struct FCharacterEvent : public FInputEvent
{
public:
	FCharacterEvent()
		: FInputEvent(FModifierKeysState(), 0, false)
		, Character(0)
	{
	}

	FCharacterEvent(const TCHAR InCharacter, const FModifierKeysState& InModifierKeys, const uint32 InUserIndex, const bool bInIsRepeat)
		: FInputEvent(InModifierKeys, InUserIndex, bInIsRepeat)
		, Character(InCharacter)
	{
	}

	/** Returns the character for this event */
	TCHAR GetCharacter() const { return Character; }

private:
	TCHAR Character;
};
