#pragma once

#include "CoreMinimal.h"

#include "ToolMenuOwner.generated.h"

/** Who added a menu entry: a pointer (usually a module) or a name; entries are removed by owner. */
USTRUCT(BlueprintType)
struct TOOLMENUS_API FToolMenuOwner
{
	GENERATED_BODY()

public:
	FToolMenuOwner()
		: Pointer(nullptr)
	{
	}
	FToolMenuOwner(void* InPointer)
		: Pointer(InPointer)
	{
	}
	FToolMenuOwner(const WIDECHAR* InValue)
		: FToolMenuOwner(FName(InValue))
	{
	}
	FToolMenuOwner(const ANSICHAR* InValue)
		: FToolMenuOwner(FName(InValue))
	{
	}
	FToolMenuOwner(const FName InValue)
		: Pointer(nullptr)
		, Name(InValue)
	{
	}

	bool operator==(const FToolMenuOwner& Other) const { return Pointer == Other.Pointer && Name == Other.Name; }
	bool operator!=(const FToolMenuOwner& Other) const { return !(*this == Other); }

	bool IsSet() const { return Pointer != nullptr || !Name.IsNone(); }
	FName TryGetName() const { return Name; }

private:
	void* Pointer;
	FName Name;
};
