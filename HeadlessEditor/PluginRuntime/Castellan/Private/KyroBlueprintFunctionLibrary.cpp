#include "KyroBlueprintFunctionLibrary.h"

#include "KyroViewportRenderingState.h"

FKyroViewportRenderingState& FKyroViewportRenderingState::Get()
{
	static FKyroViewportRenderingState State;
	return State;
}

void UKyroBlueprintFunctionLibrary::ToggleEditorViewportRendering()
{
	FKyroViewportRenderingState& State = FKyroViewportRenderingState::Get();
	State.bEditorViewportRendering = !State.bEditorViewportRendering;
}

bool UKyroBlueprintFunctionLibrary::GetIsEditorViewportRendering()
{
	return FKyroViewportRenderingState::Get().bEditorViewportRendering;
}

void UKyroBlueprintFunctionLibrary::ToggleRuntimeViewportRendering()
{
	FKyroViewportRenderingState& State = FKyroViewportRenderingState::Get();
	State.bRuntimeViewportRendering = !State.bRuntimeViewportRendering;
}

bool UKyroBlueprintFunctionLibrary::GetIsRuntimeViewportRendering()
{
	return FKyroViewportRenderingState::Get().bRuntimeViewportRendering;
}
