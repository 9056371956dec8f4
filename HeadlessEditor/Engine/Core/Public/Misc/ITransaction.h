#pragma once

#include "CoreTypes.h"

class UObject;

/** The transaction currently recording changes; the editor's transaction buffer implements it. */
class ITransaction
{
public:
	virtual ~ITransaction() = default;

	/** Records the object's state before it is changed, so the change can be undone. */
	virtual void SaveObject(UObject* Object) = 0;
};
