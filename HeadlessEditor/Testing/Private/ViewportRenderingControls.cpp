#include "ViewportRenderingControls.h"

#include "KyroViewportRenderingState.h"

void HeadlessRuntime::SetEditorViewportRendering(bool bEnabled)
{
	FKyroViewportRenderingState::Get().bEditorViewportRendering = bEnabled;
}

void HeadlessRuntime::SetRuntimeViewportRendering(bool bEnabled)
{
	FKyroViewportRenderingState::Get().bRuntimeViewportRendering = bEnabled;
}
