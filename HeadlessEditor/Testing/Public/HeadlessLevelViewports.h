#pragma once

#include "CoreMinimal.h"
#include "HeadlessEditorSession.h"
#include "Templates/UniquePtr.h"

class FLevelEditorViewportClient;
class FViewport;

/** The level editor's viewports of a session: each a client with its viewport, registered with GEditor. */
class HEADLESSTESTING_API FHeadlessLevelViewports
{
public:
	FHeadlessLevelViewports(const TArray<FHeadlessLevelViewportOptions>& Viewports, int32 ActiveViewport);
	~FHeadlessLevelViewports();

	FHeadlessLevelViewports(const FHeadlessLevelViewports&) = delete;
	FHeadlessLevelViewports& operator=(const FHeadlessLevelViewports&) = delete;

private:
	TArray<TUniquePtr<FLevelEditorViewportClient>> Clients;
	TArray<TUniquePtr<FViewport>> Viewports;
};
