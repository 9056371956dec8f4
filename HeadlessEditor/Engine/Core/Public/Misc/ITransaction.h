#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"
#include "Internationalization/Text.h"

class UObject;

/** What a transaction is: its title, its context and the object it was opened for. */
struct FTransactionContext
{
	FString Context;
	FText Title;
	UObject* PrimaryObject = nullptr;
};

/** The transaction currently recording changes; the editor's transaction buffer implements it. */
class ITransaction
{
public:
	virtual ~ITransaction() = default;

	/** Records the object's state before it is changed, so the change can be undone. */
	virtual void SaveObject(UObject* Object) = 0;

	/** The title and context the transaction was opened with. */
	virtual FTransactionContext GetContext() const = 0;
};
