#include "KyroBlueprintFunctionLibrary.h"

#include "HeadlessViewportRendering.h"

namespace
{
	/** The switches are process-wide, as the runtime keeps them. */
	struct FViewportRenderingState
	{
		bool bEditorViewportRendering = true;
		bool bRuntimeViewportRendering = true;
	};

	FViewportRenderingState& ViewportRendering()
	{
		static FViewportRenderingState State;
		return State;
	}
}

void UKyroBlueprintFunctionLibrary::ToggleEditorViewportRendering()
{
	ViewportRendering().bEditorViewportRendering = !ViewportRendering().bEditorViewportRendering;
}

bool UKyroBlueprintFunctionLibrary::GetIsEditorViewportRendering()
{
	return ViewportRendering().bEditorViewportRendering;
}

void UKyroBlueprintFunctionLibrary::ToggleRuntimeViewportRendering()
{
	ViewportRendering().bRuntimeViewportRendering = !ViewportRendering().bRuntimeViewportRendering;
}

bool UKyroBlueprintFunctionLibrary::GetIsRuntimeViewportRendering()
{
	return ViewportRendering().bRuntimeViewportRendering;
}

void UE::Headless::SetEditorViewportRendering(bool bEnabled)
{
	ViewportRendering().bEditorViewportRendering = bEnabled;
}

void UE::Headless::SetRuntimeViewportRendering(bool bEnabled)
{
	ViewportRendering().bRuntimeViewportRendering = bEnabled;
}
