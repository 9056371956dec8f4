#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "UObject/ObjectMacros.h"
#include "Engine/EngineTypes.h"
#include "Engine.generated.h"

class UWorld;

/** How GetWorldFromContextObject reacts to an object without a world. */
enum class EGetWorldErrorMode
{
	ReturnNull,
	LogAndReturnNull,
	Assert
};

/** A world the engine runs, and what kind of world it is. */
struct ENGINE_API FWorldContext
{
	EWorldType::Type WorldType = EWorldType::None;

	UWorld* World() const { return ThisCurrentWorld; }
	void SetCurrentWorld(UWorld* World) { ThisCurrentWorld = World; }

private:
	UWorld* ThisCurrentWorld = nullptr;
};

/** The engine: owner of the worlds the editor and games run. */
UCLASS(abstract, config = Engine, defaultconfig, transient)
class ENGINE_API UEngine : public UObject
{
	GENERATED_UCLASS_BODY()

public:
	/** The world the object belongs to; with Assert, a missing world is fatal. */
	UWorld* GetWorldFromContextObject(const UObject* Object, EGetWorldErrorMode ErrorMode) const;
	UWorld* GetWorldFromContextObjectChecked(const UObject* Object) const { return GetWorldFromContextObject(Object, EGetWorldErrorMode::Assert); }
};

/** The running engine; the editor engine while the editor runs. */
extern ENGINE_API class UEngine* GEngine;
