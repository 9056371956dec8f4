#pragma once

#include "CoreMinimal.h"
#include "Engine/Engine.h"
#include "PlayInEditorDataTypes.h"
#include "UObject/ObjectMacros.h"
#include "UObject/ObjectPtr.h"
#include "EditorEngine.generated.h"

class UWorld;

/** The engine while the editor runs: the editor world and play sessions started from it. */
UCLASS(config = Engine, transient)
class UNREALED_API UEditorEngine : public UEngine
{
	GENERATED_UCLASS_BODY()

public:
	/** The world of the running play session, or null. */
	UPROPERTY()
	TObjectPtr<class UWorld> PlayWorld;

	/** The context of the world being edited. */
	FWorldContext& GetEditorWorldContext(bool bEnsureIsGWorld = false);

	/** Queues a play session; it starts at StartQueuedPlaySessionRequest, as on the editor's next tick. */
	void RequestPlaySession(const FRequestPlaySessionParams& InParams);
	void CancelRequestPlaySession();
	/** Starts the queued play session, if any. */
	void StartQueuedPlaySessionRequest();
	/** Asks for the play session to end; it ends at EndPlayMap, as on the editor's next tick. */
	void RequestEndPlayMap();
	bool ShouldEndPlayMap() const { return bRequestEndPlayMapQueued; }
	/** Ends the play session now and destroys its world. */
	virtual void EndPlayMap();

	bool IsPlayingSessionInEditor() const { return PlayInEditorSessionInfo.IsSet(); }
	bool IsPlaySessionRequestQueued() const { return PlaySessionRequest.IsSet(); }
	bool IsPlaySessionInProgress() const { return IsPlayingSessionInEditor() || IsPlaySessionRequestQueued(); }
	bool IsSimulatingInEditor() const { return PlayInEditorSessionInfo.IsSet() && PlayInEditorSessionInfo->OriginalRequestParams.WorldType == EPlaySessionWorldType::SimulateInEditor; }
	const TOptional<FRequestPlaySessionParams> GetPlaySessionRequest() const { return PlaySessionRequest; }
	const TOptional<FPlayInEditorSessionInfo> GetPlayInEditorSessionInfo() const { return PlayInEditorSessionInfo; }

	uint32 bRequestEndPlayMapQueued : 1;

protected:
	TOptional<FRequestPlaySessionParams> PlaySessionRequest;
	TOptional<FPlayInEditorSessionInfo> PlayInEditorSessionInfo;

private:
	FWorldContext EditorWorldContext;
};
