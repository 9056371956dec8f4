#include "HeadlessLevelViewports.h"

#include "HeadlessLevelEditor.h"
#include "LevelEditorViewport.h"
#include "UnrealClient.h"

FHeadlessLevelViewports::FHeadlessLevelViewports(const TArray<FHeadlessLevelViewportOptions>& InViewports, int32 ActiveViewport)
{
	for (const FHeadlessLevelViewportOptions& Options : InViewports)
	{
		TUniquePtr<FLevelEditorViewportClient> Client = MakeUnique<FLevelEditorViewportClient>(TSharedPtr<SLevelViewport>());
		Client->SetViewLocation(Options.ViewLocation);
		Client->SetViewRotation(Options.ViewRotation);
		TUniquePtr<FViewport> Viewport = MakeUnique<FViewport>(Client.get());
		Client->Viewport = Viewport.get();
		Clients.Add(MoveTemp(Client));
		Viewports.Add(MoveTemp(Viewport));
	}
	UE::Headless::SetActiveViewport(Viewports.IsValidIndex(ActiveViewport) ? Viewports[ActiveViewport].get() : nullptr);
}

FHeadlessLevelViewports::~FHeadlessLevelViewports()
{
	UE::Headless::SetActiveViewport(nullptr);
	Clients.Reset();
	Viewports.Reset();
}
