#include "Editor/EditorEngine.h"

#include "Editor.h"
#include "Editor/UnrealEdEngine.h"
#include "Engine/World.h"
#include "UObject/Package.h"
#include "UnrealEdGlobals.h"

UEditorEngine* GEditor = nullptr;
UUnrealEdEngine* GUnrealEd = nullptr;

UEditorEngine::UEditorEngine(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, bRequestEndPlayMapQueued(false)
{
	EditorWorldContext.WorldType = EWorldType::Editor;
}

FWorldContext& UEditorEngine::GetEditorWorldContext(bool bEnsureIsGWorld)
{
	return EditorWorldContext;
}

void UEditorEngine::RequestPlaySession(const FRequestPlaySessionParams& InParams)
{
	PlaySessionRequest = InParams;
}

void UEditorEngine::CancelRequestPlaySession()
{
	PlaySessionRequest.Reset();
}

void UEditorEngine::StartQueuedPlaySessionRequest()
{
	if (!PlaySessionRequest.IsSet())
	{
		return;
	}
	// The engine duplicates the editor world for the session; this world starts empty.
	UWorld* EditorWorld = EditorWorldContext.World();
	const FString PlayPackageName = FString(TEXT("/Temp/UEDPIE_0_")) + (EditorWorld ? EditorWorld->GetName() : FString(TEXT("Untitled")));
	PlayWorld = UWorld::CreateWorld(EWorldType::PIE, false, NAME_None, CreatePackage(*PlayPackageName));
	FPlayInEditorSessionInfo SessionInfo;
	SessionInfo.OriginalRequestParams = PlaySessionRequest.GetValue();
	SessionInfo.PIEInstanceCount = 1;
	PlayInEditorSessionInfo = SessionInfo;
	PlaySessionRequest.Reset();
}

void UEditorEngine::RequestEndPlayMap()
{
	if (PlayWorld)
	{
		bRequestEndPlayMapQueued = true;
	}
}

void UEditorEngine::EndPlayMap()
{
	if (PlayWorld)
	{
		PlayWorld->DestroyWorld(false);
		PlayWorld = nullptr;
	}
	PlayInEditorSessionInfo.Reset();
	bRequestEndPlayMapQueued = false;
}

UUnrealEdEngine::UUnrealEdEngine(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
}
