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

private:
	void Construct(const FText& SessionName, const bool bShouldActuallyTransact);

	bool bOutermost = false;
};
