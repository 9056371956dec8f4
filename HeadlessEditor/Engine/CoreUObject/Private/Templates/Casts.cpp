#include "Templates/Casts.h"

#include <cstdlib>

namespace UE::CoreUObject::Private
{
	void CastCheckedFailed(const UObject* Src, const UClass* To)
	{
		if (Src)
		{
			checkf(false, TEXT("Cast of %s to %s failed"), *Src->GetFullName(), *To->GetName());
		}
		else
		{
			checkf(false, TEXT("Cast of nullptr to %s failed"), *To->GetName());
		}
		std::abort();
	}
}
