#include "HeadlessEditorEngine.h"

#include "Editor.h"
#include "Editor/UnrealEdEngine.h"
#include "Engine/World.h"
#include "HeadlessLevelEditor.h"
#include "UObject/Package.h"
#include "UObject/UObjectIterator.h"
#include "UnrealEdGlobals.h"

namespace UE::Headless
{
	void CreateEditorEngine()
	{
		checkf(!GEditor, TEXT("The headless editor engine already exists"));
		UUnrealEdEngine* Engine = NewObject<UUnrealEdEngine>(GetTransientPackage(), TEXT("UnrealEdEngine_0"));
		Engine->AddToRoot();
		GUnrealEd = Engine;
		GEditor = Engine;
		GEngine = Engine;
		Engine->Trans = Engine->CreateTrans();
		ResetLevelEditor();
		// A fresh editor opens an untitled map in a temporary package.
		UWorld* EditorWorld = UWorld::CreateWorld(EWorldType::Editor, true, FName(TEXT("Untitled_1")), CreatePackage(TEXT("/Temp/Untitled_1")));
		Engine->GetEditorWorldContext().SetCurrentWorld(EditorWorld);
	}

	void DestroyEditorEngine()
	{
		if (GEditor)
		{
			GEditor->EndPlayMap();
			if (UWorld* EditorWorld = GEditor->GetEditorWorldContext().World())
			{
				EditorWorld->DestroyWorld(true);
				GEditor->GetEditorWorldContext().SetCurrentWorld(nullptr);
			}
		}
		ResetLevelEditor();
		GEditor = nullptr;
		GUnrealEd = nullptr;
		GEngine = nullptr;

		// Everything but the compiled-in types, their defaults and the transient package itself goes.
		UPackage* TransientPackage = GetTransientPackage();
		for (TObjectIterator<UObject> It; It; ++It)
		{
			UPackage* Package = It->GetOutermost();
			const bool bCompiledIn = Package && Package->HasAnyPackageFlags(PKG_CompiledIn);
			if (!bCompiledIn && *It != TransientPackage)
			{
				It->RemoveFromRoot();
				It->MarkAsGarbage();
			}
		}
		CollectGarbage(RF_NoFlags);
	}
}
