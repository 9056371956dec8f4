#pragma once

#include "CoreMinimal.h"
#include "Templates/Casts.h"

class AActor;
class FLevelEditorViewportClient;
class FTransaction;
class UObject;
class UTransactor;
class UWorld;

/** Reads and drives what the editor holds about the open level: actors, selection, assets, undo history. */
class HEADLESSTESTING_API FLevelDriver
{
public:
	static UWorld* GetEditorWorld();
	/** The actors of the editor world's level, in spawn order. */
	static TArray<AActor*> GetActors();
	template <class T>
	static TArray<T*> GetActorsOf()
	{
		TArray<T*> Result;
		for (AActor* Actor : GetActors())
		{
			if (T* Typed = Cast<T>(Actor))
			{
				Result.Add(Typed);
			}
		}
		return Result;
	}

	static TArray<AActor*> GetSelectedActors();
	static TArray<UObject*> GetSelectedObjects();

	static FLevelEditorViewportClient* GetLevelViewportClient(int32 Index);
	/** Makes the Index-th level viewport the active one; INDEX_NONE leaves none active. */
	static void SetActiveLevelViewport(int32 Index);

	/** The assets in memory whose package is in Path or below it, e.g. "/Game/LivestreamWizard". */
	static TArray<UObject*> GetAssets(const FString& Path);
	/** The asset at "/Package/Path.Name", or null. */
	static UObject* FindAsset(const FString& ObjectPath);
	/** Whether the package holding Object needs saving. */
	static bool IsPackageDirty(const UObject* Object);

	static UTransactor* GetTransactionHistory();
	/** The newest transaction not undone, or null. */
	static const FTransaction* GetLastTransaction();
	/** Undoes the newest transaction, as Ctrl+Z does. */
	static bool Undo();
};
