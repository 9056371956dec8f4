#pragma once

#include "CoreMinimal.h"

class UClass;
class UObject;

namespace HeadlessTesting
{
	/** The live objects of Class (and its children) inside Outer, class default objects excluded. */
	HEADLESSTESTING_API TArray<UObject*> GetObjectsOfClass(const UClass* Class, const UObject* Outer = nullptr);
}
