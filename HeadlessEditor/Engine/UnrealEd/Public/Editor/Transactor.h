#pragma once

#include "CoreMinimal.h"
#include "Misc/CoreMiscDefines.h"
#include "Misc/ITransaction.h"
#include "UObject/Object.h"
#include "UObject/ObjectMacros.h"
#include "Templates/UniquePtr.h"
#include "UObject/WeakObjectPtr.h"
#include "UObject/WeakObjectPtrTemplates.h"
#include "Transactor.generated.h"

class AActor;

/**
 * One undoable editor transaction: the state each object had when the transaction first saw it
 * change. The engine serialises whole objects; the headless editor keeps their reflected
 * properties, a level's actor list and a package's dirty flag, which is what its undo restores.
 */
class UNREALED_API FTransaction : public ITransaction
{
public:
	FTransaction(const TCHAR* InContext = nullptr, const FText& InTitle = FText(), bool bInFlip = false);
	virtual ~FTransaction() override;

	FTransaction(const FTransaction&) = delete;
	FTransaction& operator=(const FTransaction&) = delete;

	/** Records Object's state the first time it is saved in this transaction. */
	virtual void SaveObject(UObject* Object) override;
	virtual FTransactionContext GetContext() const override;

	/** The text the editor's Undo entry shows. */
	FText GetTitle() const { return Title; }
	int32 GetRecordCount() const { return Records.Num(); }
	/** Whether no recorded object changed, so the transaction leaves no undo step. */
	bool IsTransient() const;
	/** The objects this transaction recorded, in the order they were first changed. */
	void GetTransactionObjects(TArray<UObject*>& Objects) const;
	bool ContainsObject(const UObject* Object) const;

	/** Closes the transaction: notes which actors it added to the levels it recorded. */
	void Finalize();
	/** Restores every recorded object and removes the actors the transaction added. */
	void Apply();

private:
	struct FObjectRecord;

	FString Context;
	FText Title;
	TArray<TUniquePtr<FObjectRecord>> Records;
	TArray<TWeakObjectPtr<AActor>> SpawnedActors;
};

/** Keeps the editor's undo history. */
UCLASS(abstract, transient)
class UNREALED_API UTransactor : public UObject
{
	GENERATED_BODY()

public:
	UTransactor(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	/** Opens a transaction, or joins the open one; returns how many were open before. */
	virtual int32 Begin(const TCHAR* SessionContext, const FText& Description) PURE_VIRTUAL(UTransactor::Begin, return 0;);
	/** Closes one level of the open transaction; returns how many were open when called (1: it closed). */
	virtual int32 End() PURE_VIRTUAL(UTransactor::End, return 0;);
	/** Abandons the open transaction entirely (a partial cancel from StartIndex is not supported). */
	virtual void Cancel(int32 StartIndex = 0) PURE_VIRTUAL(UTransactor::Cancel, );
	virtual void Reset(const FText& Reason) PURE_VIRTUAL(UTransactor::Reset, );
	virtual bool IsActive() PURE_VIRTUAL(UTransactor::IsActive, return false;);
	virtual bool CanUndo(FText* Text = nullptr) PURE_VIRTUAL(UTransactor::CanUndo, return false;);
	/** How many transactions the history holds, undone ones included. */
	virtual int32 GetQueueLength() const PURE_VIRTUAL(UTransactor::GetQueueLength, return 0;);
	virtual const FTransaction* GetTransaction(int32 QueueIndex) const PURE_VIRTUAL(UTransactor::GetTransaction, return nullptr;);
	/** How many transactions at the end of the history are undone. */
	virtual int32 GetUndoCount() const PURE_VIRTUAL(UTransactor::GetUndoCount, return 0;);
	virtual bool Undo(bool bCanRedo = true) PURE_VIRTUAL(UTransactor::Undo, return false;);
};
