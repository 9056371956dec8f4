#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"
#include "EngineTypes.generated.h"

/** Whether a move teleports physics state along with the transform. */
UENUM()
enum class ETeleportType : uint8
{
	None,
	TeleportPhysics,
	ResetPhysics,
};

/** The kinds of world the engine runs. */
namespace EWorldType
{
	enum Type
	{
		None,
		Game,
		Editor,
		PIE,
		EditorPreview,
		GamePreview,
		GameRPC,
		Inactive
	};
}

/** How a spawn treats collisions at the spawn point; the headless world has no collision. */
UENUM()
enum class ESpawnActorCollisionHandlingMethod : uint8
{
	Undefined,
	AlwaysSpawn UMETA(DisplayName = "Always Spawn, Ignore Collisions"),
	AdjustIfPossibleButAlwaysSpawn UMETA(DisplayName = "Try To Adjust Location, But Always Spawn"),
	AdjustIfPossibleButDontSpawnIfColliding UMETA(DisplayName = "Try To Adjust Location, Don't Spawn If Still Colliding"),
	DontSpawnIfColliding UMETA(DisplayName = "Do Not Spawn"),
};
