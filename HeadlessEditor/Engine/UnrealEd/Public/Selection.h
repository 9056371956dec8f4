#pragma once

#include "CoreMinimal.h"
#include "Templates/Casts.h"
#include "UObject/Object.h"
#include "UObject/ObjectMacros.h"
#include "UObject/WeakObjectPtr.h"
#include "UObject/WeakObjectPtrTemplates.h"
#include "Selection.generated.h"

/** A set of selected objects: the editor keeps one for actors and one for other objects. */
UCLASS(transient)
class UNREALED_API USelection : public UObject
{
	GENERATED_BODY()

public:
	USelection(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	/** The number of entries; an entry whose object was destroyed reads as null. */
	int32 Num() const { return SelectedObjects.Num(); }
	UObject* GetSelectedObject(const int32 InIndex) const;

	void Select(UObject* InObject);
	void Deselect(UObject* InObject);
	void Select(UObject* InObject, bool bSelect);
	/** Deselects every object of InClass (every object when null). */
	void DeselectAll(UClass* InClass = NULL);
	bool IsSelected(const UObject* InObject) const;

	template <class T>
	int32 GetSelectedObjects(TArray<T*>& OutSelectedObjects)
	{
		OutSelectedObjects.Empty();
		for (int32 Idx = 0; Idx < Num(); ++Idx)
		{
			if (T* Selected = Cast<T>(GetSelectedObject(Idx)))
			{
				OutSelectedObjects.Add(Selected);
			}
		}
		return OutSelectedObjects.Num();
	}

private:
	TArray<TWeakObjectPtr<UObject>> SelectedObjects;
};
