#pragma once

#include "CoreMinimal.h"
#include "GameFramework/Actor.h"
#include "UObject/ObjectMacros.h"
#include "KyroSceneActor.generated.h"

/**
 * An actor of the plugin that has a place in the level and nothing to show there: a plain scene
 * component is its root. The sender managers, the outputs and the viewport capture are such actors.
 */
UCLASS(Abstract)
class CASTELLAN_API AKyroSceneActor : public AActor
{
	GENERATED_BODY()

public:
	AKyroSceneActor(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());
};
