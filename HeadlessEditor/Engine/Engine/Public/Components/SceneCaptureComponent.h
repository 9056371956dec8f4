#pragma once

#include "CoreMinimal.h"
#include "Components/SceneComponent.h"
#include "ShowFlags.h"
#include "UObject/ObjectMacros.h"
#include "SceneCaptureComponent.generated.h"

/** A show flag a scene capture overrides, by name. */
USTRUCT(BlueprintType)
struct FEngineShowFlagsSetting
{
	GENERATED_USTRUCT_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = SceneCapture)
	FString ShowFlagName;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = SceneCapture)
	bool Enabled = false;

	bool operator==(const FEngineShowFlagsSetting& Other) const { return ShowFlagName == Other.ShowFlagName && Other.Enabled == Enabled; }
};

/** Which primitives a scene capture renders. */
UENUM()
enum class ESceneCapturePrimitiveRenderMode : uint8
{
	PRM_LegacySceneCapture UMETA(DisplayName = "Render Scene Primitives (Legacy)"),
	PRM_RenderScenePrimitives UMETA(DisplayName = "Render Scene Primitives"),
	PRM_UseShowOnlyList UMETA(DisplayName = "Use ShowOnly List")
};

/** Renders the scene from its own view into a texture. */
UCLASS(hidecategories = (Collision, Object, Physics, SceneComponent, Mobility), abstract, MinimalAPI)
class USceneCaptureComponent : public USceneComponent
{
	GENERATED_UCLASS_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = SceneCapture)
	ESceneCapturePrimitiveRenderMode PrimitiveRenderMode;

	/** Whether to capture every frame. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = SceneCapture)
	uint8 bCaptureEveryFrame : 1;

	/** Whether to capture when the component moves. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = SceneCapture)
	uint8 bCaptureOnMovement : 1;

	/** Show flags this capture overrides, by name. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, interp, Category = SceneCapture)
	TArray<struct FEngineShowFlagsSetting> ShowFlagSettings;

	/** The show flags the capture renders with: the archetype's, with ShowFlagSettings applied. */
	FEngineShowFlags ShowFlags;

public:
	/** Name of the profiling event. */
	UPROPERTY(EditAnywhere, interp, Category = SceneCapture)
	FString ProfilingEventName;

	/** Rebuilds ShowFlags from the archetype's flags and the overrides. */
	ENGINE_API void UpdateShowFlags();

	ENGINE_API virtual void PostEditChangeProperty(struct FPropertyChangedEvent& PropertyChangedEvent) override;
};
