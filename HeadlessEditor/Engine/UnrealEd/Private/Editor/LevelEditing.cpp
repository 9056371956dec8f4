#include "Editor.h"
#include "Editor/EditorEngine.h"
#include "Editor/UnrealEdEngine.h"
#include "EditorViewportClient.h"
#include "Engine/World.h"
#include "GameFramework/Actor.h"
#include "HeadlessLevelEditor.h"
#include "HeadlessLevelEditorState.h"
#include "LevelEditorViewport.h"
#include "Selection.h"
#include "UObject/Package.h"

FHeadlessLevelEditorState& FHeadlessLevelEditorState::Get()
{
	static FHeadlessLevelEditorState State;
	return State;
}

void UE::Headless::SetActiveViewport(FViewport* Viewport)
{
	FHeadlessLevelEditorState::Get().ActiveViewport = Viewport;
}

int32 UE::Headless::GetRedrawAllViewportsCount()
{
	return FHeadlessLevelEditorState::Get().RedrawAllViewportsCount;
}

TArray<AActor*> UE::Headless::GetFloatingPropertyWindowsActors()
{
	TArray<AActor*> Actors;
	for (const TWeakObjectPtr<AActor>& Actor : FHeadlessLevelEditorState::Get().FloatingPropertyWindowsActors)
	{
		if (Actor.IsValid())
		{
			Actors.Add(Actor.Get());
		}
	}
	return Actors;
}

int32 UE::Headless::GetFloatingPropertyWindowsUpdateCount()
{
	return FHeadlessLevelEditorState::Get().FloatingPropertyWindowsUpdateCount;
}

void UE::Headless::ResetLevelEditor()
{
	FHeadlessLevelEditorState::Get() = FHeadlessLevelEditorState();
}

FEditorViewportClient::FEditorViewportClient(FEditorModeTools* InModeTools, FPreviewScene* InPreviewScene)
	: Viewport(nullptr)
	, ViewLocation(FVector::ZeroVector)
	, ViewRotation(0, 0, 0)
{
	if (GEditor)
	{
		GEditor->AddViewportClients(this);
	}
}

FEditorViewportClient::~FEditorViewportClient()
{
	if (GEditor)
	{
		GEditor->RemoveViewportClients(this);
	}
}

UWorld* FEditorViewportClient::GetWorld() const
{
	return GEditor ? GEditor->GetEditorWorldContext().World() : nullptr;
}

void FEditorViewportClient::Invalidate(bool bInvalidateChildViews, bool bInvalidateHitProxies)
{
}

FLevelEditorViewportClient::FLevelEditorViewportClient(const TSharedPtr<SLevelViewport>& InLevelViewport)
	: FEditorViewportClient(nullptr)
{
	if (GEditor)
	{
		GEditor->AddLevelViewportClients(this);
	}
}

FLevelEditorViewportClient::~FLevelEditorViewportClient()
{
	if (GEditor)
	{
		GEditor->RemoveLevelViewportClients(this);
	}
}

UWorld* FLevelEditorViewportClient::GetWorld() const
{
	if (GEditor && GEditor->IsSimulatingInEditor() && GEditor->PlayWorld)
	{
		return GEditor->PlayWorld;
	}
	return FEditorViewportClient::GetWorld();
}

int32 UEditorEngine::AddLevelViewportClients(FLevelEditorViewportClient* ViewportClient)
{
	return LevelViewportClients.Add(ViewportClient);
}

void UEditorEngine::RemoveLevelViewportClients(FLevelEditorViewportClient* ViewportClient)
{
	LevelViewportClients.Remove(ViewportClient);
}

int32 UEditorEngine::AddViewportClients(FEditorViewportClient* ViewportClient)
{
	return AllViewportClients.Add(ViewportClient);
}

void UEditorEngine::RemoveViewportClients(FEditorViewportClient* ViewportClient)
{
	AllViewportClients.Remove(ViewportClient);
}

FViewport* UEditorEngine::GetActiveViewport()
{
	return FHeadlessLevelEditorState::Get().ActiveViewport;
}

void UEditorEngine::RedrawAllViewports(bool bInvalidateHitProxies)
{
	++FHeadlessLevelEditorState::Get().RedrawAllViewportsCount;
	for (FEditorViewportClient* ViewportClient : AllViewportClients)
	{
		ViewportClient->Invalidate(false, bInvalidateHitProxies);
	}
}

USelection* UEditorEngine::GetSelectedActors() const
{
	if (!SelectedActors)
	{
		SelectedActors = NewObject<USelection>(GetTransientPackage(), TEXT("SelectedActors"), RF_Transactional);
	}
	return SelectedActors;
}

USelection* UEditorEngine::GetSelectedObjects() const
{
	if (!SelectedObjects)
	{
		SelectedObjects = NewObject<USelection>(GetTransientPackage(), TEXT("SelectedObjects"), RF_Transactional);
	}
	return SelectedObjects;
}

void UUnrealEdEngine::SelectActor(AActor* Actor, bool bInSelected, bool bNotify, bool bSelectEvenIfHidden, bool bForceRefresh)
{
	if (Actor)
	{
		GetSelectedActors()->Select(Actor, bInSelected);
	}
}

void UUnrealEdEngine::SelectNone(bool bNoteSelectionChange, bool bDeselectBSPSurfs, bool WarnAboutManyActors)
{
	GetSelectedActors()->DeselectAll();
}

void UUnrealEdEngine::UpdateFloatingPropertyWindowsFromActorList(const TArray<AActor*>& ActorList, bool bForceRefresh)
{
	FHeadlessLevelEditorState& State = FHeadlessLevelEditorState::Get();
	State.FloatingPropertyWindowsActors.Reset();
	for (AActor* Actor : ActorList)
	{
		State.FloatingPropertyWindowsActors.Add(Actor);
	}
	++State.FloatingPropertyWindowsUpdateCount;
}

USelection::USelection(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
}

UObject* USelection::GetSelectedObject(const int32 InIndex) const
{
	return SelectedObjects.IsValidIndex(InIndex) ? SelectedObjects[InIndex].Get() : nullptr;
}

void USelection::Select(UObject* InObject)
{
	check(InObject);
	if (!IsSelected(InObject))
	{
		SelectedObjects.Add(InObject);
	}
}

void USelection::Deselect(UObject* InObject)
{
	check(InObject);
	SelectedObjects.RemoveAll([InObject](const TWeakObjectPtr<UObject>& Entry)
		{ return Entry.Get() == InObject; });
}

void USelection::Select(UObject* InObject, bool bSelect)
{
	if (bSelect)
	{
		Select(InObject);
	}
	else
	{
		Deselect(InObject);
	}
}

void USelection::DeselectAll(UClass* InClass)
{
	SelectedObjects.RemoveAll([InClass](const TWeakObjectPtr<UObject>& Entry)
		{ return !InClass || !Entry.IsValid() || Entry->IsA(InClass); });
}

bool USelection::IsSelected(const UObject* InObject) const
{
	for (const TWeakObjectPtr<UObject>& Entry : SelectedObjects)
	{
		if (InObject && Entry.Get() == InObject)
		{
			return true;
		}
	}
	return false;
}
