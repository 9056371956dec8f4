#pragma once

#include "CoreMinimal.h"
#include "Engine/Engine.h"
#include "PlayInEditorDataTypes.h"
#include "UObject/ObjectMacros.h"
#include "UObject/ObjectPtr.h"
#include "EditorEngine.generated.h"

class AActor;
class FEditorViewportClient;
class FLevelEditorViewportClient;
class FViewport;
class USelection;
class UTransactor;
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

	/** The editor's undo history. */
	UPROPERTY()
	TObjectPtr<class UTransactor> Trans;

	/** The clients of the level editor's viewports, in the order they were created. */
	const TArray<class FLevelEditorViewportClient*>& GetLevelViewportClients() { return LevelViewportClients; }
	const TArray<class FLevelEditorViewportClient*>& GetLevelViewportClients() const { return LevelViewportClients; }
	int32 AddLevelViewportClients(FLevelEditorViewportClient* ViewportClient);
	void RemoveLevelViewportClients(FLevelEditorViewportClient* ViewportClient);
	const TArray<class FEditorViewportClient*>& GetAllViewportClients() { return AllViewportClients; }
	const TArray<class FEditorViewportClient*>& GetAllViewportClients() const { return AllViewportClients; }
	int32 AddViewportClients(FEditorViewportClient* ViewportClient);
	void RemoveViewportClients(FEditorViewportClient* ViewportClient);
	/** The viewport the level editor reports as active (the one last used), or null. */
	FViewport* GetActiveViewport();
	void RedrawAllViewports(bool bInvalidateHitProxies = true);

	virtual void SelectActor(AActor* Actor, bool bInSelected, bool bNotify, bool bSelectEvenIfHidden = false, bool bForceRefresh = false) {}
	virtual void SelectNone(bool bNoteSelectionChange, bool bDeselectBSPSurfs, bool WarnAboutManyActors = true) {}
	class USelection* GetSelectedActors() const;
	class USelection* GetSelectedObjects() const;

	virtual UTransactor* CreateTrans();
	virtual int32 BeginTransaction(const TCHAR* TransactionContext, const FText& Description, UObject* PrimaryObject);
	int32 BeginTransaction(const FText& Description);
	virtual bool CanTransact();
	virtual int32 EndTransaction();
	virtual void CancelTransaction(int32 Index);
	void ResetTransaction(const FText& Reason);
	bool UndoTransaction(bool bCanRedo = true);

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
	TArray<class FLevelEditorViewportClient*> LevelViewportClients;
	TArray<class FEditorViewportClient*> AllViewportClients;
	mutable TObjectPtr<USelection> SelectedActors;
	mutable TObjectPtr<USelection> SelectedObjects;
};
