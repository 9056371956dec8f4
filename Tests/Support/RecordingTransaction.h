#pragma once

#include "CoreMinimal.h"
#include "Misc/ITransaction.h"

/** Stands in for an open transaction and remembers which objects were saved into it. */
class FRecordingTransaction : public ITransaction
{
public:
	virtual void SaveObject(UObject* Object) override { Saved.Add(Object); }
	virtual FTransactionContext GetContext() const override { return FTransactionContext(); }

	TArray<UObject*> Saved;
};
