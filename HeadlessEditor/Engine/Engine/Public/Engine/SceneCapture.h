#pragma once

#include "CoreMinimal.h"
#include "GameFramework/Actor.h"
#include "UObject/ObjectMacros.h"
#include "UObject/ObjectPtr.h"
#include "SceneCapture.generated.h"

class USceneComponent;

/** The base of the actors that capture the scene into a texture. */
UCLASS(abstract, hidecategories = (Collision, Attachment, Actor), MinimalAPI)
class ASceneCapture : public AActor
{
	GENERATED_UCLASS_BODY()

private:
	UPROPERTY(Category = Components, VisibleAnywhere, BlueprintReadOnly, meta = (AllowPrivateAccess = "true"))
	TObjectPtr<class USceneComponent> SceneComponent;

public:
	/** Returns the root scene component. */
	USceneComponent* GetSceneComponent() const { return SceneComponent; }
};
