#pragma once

#include "CoreMinimal.h"
#include "Editor/Transactor.h"
#include "UObject/ObjectMacros.h"
#include "TransBuffer.generated.h"

/** The editor's transaction history: a queue of transactions, the last UndoCount of them undone. */
UCLASS(transient)
class UNREALED_API UTransBuffer : public UTransactor
{
	GENERATED_BODY()

public:
	UTransBuffer(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	virtual int32 Begin(const TCHAR* SessionContext, const FText& Description) override;
	virtual int32 End() override;
	virtual void Cancel(int32 StartIndex = 0) override;
	virtual void Reset(const FText& Reason) override;
	virtual bool IsActive() override { return ActiveCount > 0; }
	virtual bool CanUndo(FText* Text = nullptr) override;
	virtual int32 GetQueueLength() const override { return UndoBuffer.Num(); }
	virtual const FTransaction* GetTransaction(int32 QueueIndex) const override;
	virtual int32 GetUndoCount() const override { return UndoCount; }
	virtual bool Undo(bool bCanRedo = true) override;

private:
	TArray<TSharedRef<FTransaction>> UndoBuffer;
	/** The undone transactions a new transaction set aside, restored if it is cancelled. */
	TArray<TSharedRef<FTransaction>> RemovedTransactions;
	int32 UndoCount = 0;
	int32 PreviousUndoCount = INDEX_NONE;
	int32 ActiveCount = 0;
};
