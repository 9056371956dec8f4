#pragma once

#include "CoreTypes.h"

/** Identifies one binding added to a multicast delegate; default-constructed handles are invalid. */
class CORE_API FDelegateHandle
{
public:
	enum EGenerateNewHandleType
	{
		GenerateNewHandle
	};

	FDelegateHandle() = default;
	explicit FDelegateHandle(EGenerateNewHandleType);

	bool IsValid() const { return ID != 0; }
	void Reset() { ID = 0; }

	friend bool operator==(const FDelegateHandle& A, const FDelegateHandle& B) { return A.ID == B.ID; }
	friend bool operator!=(const FDelegateHandle& A, const FDelegateHandle& B) { return A.ID != B.ID; }

private:
	uint64 ID = 0;
};
