#pragma once

#include "CoreMinimal.h"

class UObject;

/** The editor's object utilities; the headless editor has the deletion the wizard needs. */
namespace ObjectTools
{
	/**
	 * Deletes the objects without checking whether anything still uses them; the editor's delete
	 * dialog calls it once it has made sure that nothing does.
	 *
	 * @return The number of objects deleted.
	 */
	UNREALED_API int32 DeleteObjectsUnchecked(const TArray<UObject*>& ObjectsToDelete);
}
