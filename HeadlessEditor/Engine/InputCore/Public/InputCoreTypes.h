#pragma once

#include "CoreMinimal.h"

/** A key on a keyboard, mouse or gamepad, identified by its name. */
struct INPUTCORE_API FKey
{
	FKey() = default;
	FKey(const FName InName)
		: KeyName(InName)
	{
	}
	FKey(const TCHAR* InName)
		: KeyName(FName(InName))
	{
	}
	FKey(const ANSICHAR* InName)
		: KeyName(FName(InName))
	{
	}

	/** The headless editor knows no key table: any named key is valid. */
	bool IsValid() const { return !KeyName.IsNone(); }
	FString ToString() const { return KeyName.ToString(); }
	FName GetFName() const { return KeyName; }
	FText GetDisplayName(bool bLongDisplayName = true) const { return FText::FromString(KeyName.ToString()); }

	friend bool operator==(const FKey& KeyA, const FKey& KeyB) { return KeyA.KeyName == KeyB.KeyName; }
	friend bool operator!=(const FKey& KeyA, const FKey& KeyB) { return KeyA.KeyName != KeyB.KeyName; }
	friend uint32 GetTypeHash(const FKey& Key) { return GetTypeHash(Key.KeyName); }

private:
	FName KeyName;
};

/** The engine's named keys. */
struct INPUTCORE_API EKeys
{
	static const FKey AnyKey;

	static const FKey BackSpace;
	static const FKey Tab;
	static const FKey Enter;
	static const FKey Escape;
	static const FKey SpaceBar;
	static const FKey Delete;

	static const FKey Left;
	static const FKey Up;
	static const FKey Right;
	static const FKey Down;

	static const FKey A;
	static const FKey B;
	static const FKey C;

	static const FKey Invalid;
};
