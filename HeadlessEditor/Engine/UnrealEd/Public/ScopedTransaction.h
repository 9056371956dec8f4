#pragma once

#include "CoreMinimal.h"

class UObject;

/**
 * Records, for as long as it lives, the changes to objects as one undoable editor transaction.
 * Nested scopes join the outermost transaction.
 */
class FScopedTransaction
{
public:
	UNREALED_API FScopedTransaction(const TCHAR* TransactionContext, const FText& SessionName, UObject* PrimaryObject, const bool bShouldActuallyTransact = true);
	UNREALED_API FScopedTransaction(const FText& SessionName, const bool bShouldActuallyTransact = true);
	UNREALED_API ~FScopedTransaction();

	FScopedTransaction(const FScopedTransaction&) = delete;
	FScopedTransaction& operator=(const FScopedTransaction&) = delete;

	/** Drops what this scope recorded, unless it was nested in another scope. */
	UNREALED_API void Cancel();
	UNREALED_API bool IsOutstanding() const;

private:
	void Construct(const TCHAR* TransactionContext, const FText& SessionName, UObject* PrimaryObject, const bool bShouldActuallyTransact);

	int32 Index;
};
