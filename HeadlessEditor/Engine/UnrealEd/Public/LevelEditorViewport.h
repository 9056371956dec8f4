#pragma once

#include "CoreMinimal.h"
#include "EditorViewportClient.h"

class SLevelViewport;

/** The client of one of the level editor's viewports; it registers itself with GEditor while it lives. */
class UNREALED_API FLevelEditorViewportClient : public FEditorViewportClient
{
public:
	explicit FLevelEditorViewportClient(const TSharedPtr<SLevelViewport>& InLevelViewport);
	virtual ~FLevelEditorViewportClient() override;

	/** The editor world, or the play world while this viewport simulates. */
	virtual UWorld* GetWorld() const override;
};
