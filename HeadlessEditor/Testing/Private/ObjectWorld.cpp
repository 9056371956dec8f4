#include "ObjectWorld.h"

#include "UObject/Class.h"
#include "UObject/UObjectIterator.h"

namespace HeadlessTesting
{
	TArray<UObject*> GetObjectsOfClass(const UClass* Class, const UObject* Outer)
	{
		TArray<UObject*> Result;
		for (TObjectIterator<UObject> It; It; ++It)
		{
			if (It->IsA(Class) && (!Outer || It->IsIn(Outer)))
			{
				Result.Add(*It);
			}
		}
		return Result;
	}
}
