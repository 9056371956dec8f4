#pragma once

#include "CoreMinimal.h"
#include "GameFramework/SaveGame.h"
#include "UObject/ObjectMacros.h"

#include "KyroSaveGame.generated.h"

/** The plugin's persisted editor settings: which offered version the user chose to skip. */
UCLASS()
class CASTELLAN_API UKyroSaveGame : public USaveGame
{
	GENERATED_BODY()

public:
	UKyroSaveGame();

	UPROPERTY(VisibleAnywhere, Category = "Basic")
	FString SaveSlotName;

	UPROPERTY(VisibleAnywhere, Category = "Basic")
	int32 UserIndex;

	/** Whether the user chose to skip Version. */
	UPROPERTY(VisibleAnywhere, Category = "Basic")
	bool bSkipVersion;

	/** The last version offered to the user. */
	UPROPERTY(VisibleAnywhere, Category = "Basic")
	FString Version;
};
