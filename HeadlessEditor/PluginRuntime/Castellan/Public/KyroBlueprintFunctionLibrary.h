#pragma once

#include "CoreMinimal.h"
#include "Kismet/BlueprintFunctionLibrary.h"
#include "UObject/ObjectMacros.h"

#include "KyroBlueprintFunctionLibrary.generated.h"

/** Blueprint-callable switches of the plugin's runtime. */
UCLASS()
class CASTELLAN_API UKyroBlueprintFunctionLibrary : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	/** Switches viewport rendering on or off in the editor and in Simulate. */
	UFUNCTION(BlueprintCallable, Category = "Kyro")
	static void ToggleEditorViewportRendering();

	/** Whether the viewport renders in the editor and in Simulate. */
	UFUNCTION(BlueprintPure, Category = "Kyro")
	static bool GetIsEditorViewportRendering();

	/** Switches viewport rendering on or off in Play In Editor and in the game. */
	UFUNCTION(BlueprintCallable, Category = "Kyro")
	static void ToggleRuntimeViewportRendering();

	/** Whether the viewport renders in Play In Editor and in the game. */
	UFUNCTION(BlueprintPure, Category = "Kyro")
	static bool GetIsRuntimeViewportRendering();
};
