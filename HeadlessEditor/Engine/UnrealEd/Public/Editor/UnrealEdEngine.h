#pragma once

#include "CoreMinimal.h"
#include "Editor/EditorEngine.h"
#include "Misc/NotifyHook.h"
#include "UObject/ObjectMacros.h"
#include "UnrealEdEngine.generated.h"

/** The editor engine of the full editor application. */
UCLASS(config = Engine, transient)
class UNREALED_API UUnrealEdEngine : public UEditorEngine, public FNotifyHook
{
	GENERATED_UCLASS_BODY()

public:
	virtual void SelectActor(AActor* Actor, bool bInSelected, bool bNotify, bool bSelectEvenIfHidden = false, bool bForceRefresh = false) override;
	virtual void SelectNone(bool bNoteSelectionChange, bool bDeselectBSPSurfs, bool WarnAboutManyActors = true) override;
	/** Shows the actors in the floating details panels that follow the selection. */
	void UpdateFloatingPropertyWindowsFromActorList(const TArray<AActor*>& ActorList, bool bForceRefresh = false);
};
