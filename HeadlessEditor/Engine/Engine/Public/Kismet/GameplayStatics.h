#pragma once

#include "CoreMinimal.h"
#include "Kismet/BlueprintFunctionLibrary.h"
#include "Templates/SubclassOf.h"
#include "UObject/ObjectMacros.h"
#include "GameplayStatics.generated.h"

class AActor;
class USaveGame;

/** Static helpers over the world of a context object. */
UCLASS()
class ENGINE_API UGameplayStatics : public UBlueprintFunctionLibrary
{
	GENERATED_UCLASS_BODY()

public:
	/** Every live actor of ActorClass (or a child class) in the context object's world, in spawn order. */
	static void GetAllActorsOfClass(const UObject* WorldContextObject, TSubclassOf<AActor> ActorClass, TArray<AActor*>& OutActors);

	/** A new, empty save-game object of the class; null for no class or an abstract one. */
	static USaveGame* CreateSaveGameObject(TSubclassOf<USaveGame> SaveGameClass);
	/** Writes the object's properties to the platform's save slot. @return whether it was written. */
	static bool SaveGameToSlot(USaveGame* SaveGameObject, const FString& SlotName, const int32 UserIndex);
	/** A new object of the saved class holding the saved properties; null if the slot is empty or unreadable. */
	static USaveGame* LoadGameFromSlot(const FString& SlotName, const int32 UserIndex);
	static bool DoesSaveGameExist(const FString& SlotName, const int32 UserIndex);
};
