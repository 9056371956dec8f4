#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "UObject/ObjectMacros.h"

#include "SaveGame.generated.h"

/** Base of the objects a game saves to and loads from a save slot; their properties are what is kept. */
UCLASS(abstract, Blueprintable, BlueprintType)
class ENGINE_API USaveGame : public UObject
{
	GENERATED_UCLASS_BODY()
};
