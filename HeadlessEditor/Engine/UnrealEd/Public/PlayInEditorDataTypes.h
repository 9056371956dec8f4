#pragma once

#include "CoreMinimal.h"

/** Whether a play session plays the game or only simulates the world. */
enum class EPlaySessionWorldType : uint8
{
	PlayInEditor,
	SimulateInEditor
};

/** What a request to start a play session asks for. */
struct FRequestPlaySessionParams
{
	EPlaySessionWorldType WorldType = EPlaySessionWorldType::PlayInEditor;
	TOptional<FVector> StartLocation;
	TOptional<FRotator> StartRotation;
	FString GlobalMapOverride;
};

/** The state of a running play session. */
struct FPlayInEditorSessionInfo
{
	double PlayRequestStartTime = 0.0;
	FRequestPlaySessionParams OriginalRequestParams;
	int32 PIEInstanceCount = 0;
	bool bStartedInSpectatorMode = false;
};
