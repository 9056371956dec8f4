#pragma once

#include "CoreMinimal.h"
#include "UnrealClient.h"

class FEditorModeTools;
class FPreviewScene;

/** A viewport client of the editor: a camera that looks into a world through a viewport. */
class UNREALED_API FEditorViewportClient : public FViewportClient
{
public:
	explicit FEditorViewportClient(FEditorModeTools* InModeTools, FPreviewScene* InPreviewScene = nullptr);
	virtual ~FEditorViewportClient() override;

	FEditorViewportClient(const FEditorViewportClient&) = delete;
	FEditorViewportClient& operator=(const FEditorViewportClient&) = delete;

	const FVector& GetViewLocation() const { return ViewLocation; }
	const FRotator& GetViewRotation() const { return ViewRotation; }
	void SetViewLocation(const FVector& NewLocation) { ViewLocation = NewLocation; }
	void SetViewRotation(const FRotator& NewRotation) { ViewRotation = NewRotation; }

	/** The world being edited. */
	virtual UWorld* GetWorld() const override;

	/** Asks for a redraw; the headless editor draws nothing, so this only counts. */
	void Invalidate(bool bInvalidateChildViews = true, bool bInvalidateHitProxies = true);

	/** The viewport this client draws into; null until the viewport widget is created. */
	FViewport* Viewport;

private:
	FVector ViewLocation;
	FRotator ViewRotation;
};
