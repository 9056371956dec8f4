#pragma once

#include "CoreMinimal.h"
#include "Views/EditorView.h"

/** Every view of the editor module that tools and tests show, in a stable order. */
class HEADLESSTESTING_API FEditorViews
{
public:
	static const TArray<FEditorView>& GetAll();
	/** The view of that name, or null. */
	static const FEditorView* Find(const FString& Name);
};
