#include "Editor/TransBuffer.h"
#include "Editor/Transactor.h"

#include "CoreGlobals.h"
#include "Editor.h"
#include "Engine/Level.h"
#include "Engine/World.h"
#include "GameFramework/Actor.h"
#include "ScopedTransaction.h"
#include "Selection.h"
#include "UObject/Package.h"
#include "UObject/UnrealType.h"

#include <new>

/** The saved state of one object: its reflected values, and a level's actors or a package's dirty flag. */
struct FTransaction::FObjectRecord
{
	struct FSavedValue
	{
		const FProperty* Property;
		void* Data;
	};

	explicit FObjectRecord(UObject* InObject)
		: Object(InObject)
	{
		for (TFieldIterator<FProperty> It(InObject->GetClass()); It; ++It)
		{
			const FProperty* Property = *It;
			void* Data = ::operator new(static_cast<size_t>(Property->GetSize()), std::align_val_t(static_cast<size_t>(Property->GetMinAlignment())));
			for (int32 Element = 0; Element < Property->ArrayDim; ++Element)
			{
				Property->InitializeValue(static_cast<uint8*>(Data) + Element * Property->ElementSize);
			}
			Property->CopyCompleteValue(Data, Property->ContainerPtrToValuePtr<void>(InObject));
			Values.Add({Property, Data});
		}
		if (const ULevel* Level = Cast<ULevel>(InObject))
		{
			for (AActor* Actor : Level->Actors)
			{
				LevelActors.Add(Actor);
			}
		}
		if (const UPackage* Package = Cast<UPackage>(InObject))
		{
			bPackageWasDirty = Package->IsDirty();
		}
	}

	~FObjectRecord()
	{
		for (const FSavedValue& Value : Values)
		{
			for (int32 Element = 0; Element < Value.Property->ArrayDim; ++Element)
			{
				Value.Property->DestroyValue(static_cast<uint8*>(Value.Data) + Element * Value.Property->ElementSize);
			}
			::operator delete(Value.Data, std::align_val_t(static_cast<size_t>(Value.Property->GetMinAlignment())));
		}
	}

	FObjectRecord(const FObjectRecord&) = delete;
	FObjectRecord& operator=(const FObjectRecord&) = delete;

	/** Whether the object now differs from its saved state; the engine drops transactions where none does. */
	bool HasChanges() const
	{
		const UObject* Target = Object.Get();
		if (!Target)
		{
			return true;
		}
		for (const FSavedValue& Value : Values)
		{
			for (int32 Element = 0; Element < Value.Property->ArrayDim; ++Element)
			{
				const void* Saved = static_cast<const uint8*>(Value.Data) + Element * Value.Property->ElementSize;
				if (!Value.Property->Identical(Value.Property->ContainerPtrToValuePtr<void>(Target, Element), Saved))
				{
					return true;
				}
			}
		}
		if (const ULevel* Level = Cast<ULevel>(Target))
		{
			if (Level->Actors.Num() != LevelActors.Num())
			{
				return true;
			}
			for (int32 Index = 0; Index < LevelActors.Num(); ++Index)
			{
				if (Level->Actors[Index] != LevelActors[Index].Get())
				{
					return true;
				}
			}
		}
		return false;
	}

	void Restore() const
	{
		UObject* Target = Object.Get();
		if (!Target)
		{
			return;
		}
		for (const FSavedValue& Value : Values)
		{
			Value.Property->CopyCompleteValue(Value.Property->ContainerPtrToValuePtr<void>(Target), Value.Data);
		}
		if (ULevel* Level = Cast<ULevel>(Target))
		{
			// Actors destroyed inside the transaction stay destroyed: the headless editor cannot revive them.
			Level->Actors.Reset();
			for (const TWeakObjectPtr<AActor>& Actor : LevelActors)
			{
				if (Actor.IsValid())
				{
					Level->Actors.Add(Actor.Get());
				}
			}
		}
		if (UPackage* Package = Cast<UPackage>(Target))
		{
			Package->SetDirtyFlag(bPackageWasDirty);
		}
	}

	TWeakObjectPtr<UObject> Object;
	TArray<FSavedValue> Values;
	TArray<TWeakObjectPtr<AActor>> LevelActors;
	bool bPackageWasDirty = false;
};

FTransaction::FTransaction(const TCHAR* InContext, const FText& InTitle, bool bInFlip)
	: Context(InContext ? FString(InContext) : FString())
	, Title(InTitle)
{
}

FTransaction::~FTransaction() = default;

void FTransaction::SaveObject(UObject* Object)
{
	if (Object && !ContainsObject(Object))
	{
		Records.Add(MakeUnique<FObjectRecord>(Object));
	}
}

void FTransaction::GetTransactionObjects(TArray<UObject*>& Objects) const
{
	Objects.Reset();
	for (const TUniquePtr<FObjectRecord>& Record : Records)
	{
		if (UObject* Object = Record->Object.Get())
		{
			Objects.Add(Object);
		}
	}
}

bool FTransaction::ContainsObject(const UObject* Object) const
{
	for (const TUniquePtr<FObjectRecord>& Record : Records)
	{
		if (Record->Object.Get() == Object)
		{
			return true;
		}
	}
	return false;
}

bool FTransaction::IsTransient() const
{
	for (const TUniquePtr<FObjectRecord>& Record : Records)
	{
		if (Record->HasChanges())
		{
			return false;
		}
	}
	return true;
}

void FTransaction::Finalize()
{
	SpawnedActors.Reset();
	for (const TUniquePtr<FObjectRecord>& Record : Records)
	{
		const ULevel* Level = Cast<ULevel>(Record->Object.Get());
		if (!Level)
		{
			continue;
		}
		for (AActor* Actor : Level->Actors)
		{
			const bool bWasThere = Record->LevelActors.ContainsByPredicate([Actor](const TWeakObjectPtr<AActor>& Old)
				{ return Old.Get() == Actor; });
			if (!bWasThere)
			{
				SpawnedActors.Add(Actor);
			}
		}
	}
}

void FTransaction::Apply()
{
	for (const TWeakObjectPtr<AActor>& WeakActor : SpawnedActors)
	{
		AActor* Actor = WeakActor.Get();
		if (Actor && Actor->GetWorld())
		{
			if (GEditor)
			{
				GEditor->GetSelectedActors()->Deselect(Actor);
			}
			Actor->GetWorld()->DestroyActor(Actor, false, false);
		}
	}
	for (int32 Index = Records.Num() - 1; Index >= 0; --Index)
	{
		Records[Index]->Restore();
	}
}

UTransactor::UTransactor(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
}

UTransBuffer::UTransBuffer(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
}

FTransactionContext FTransaction::GetContext() const
{
	FTransactionContext TransactionContext;
	TransactionContext.Context = Context;
	TransactionContext.Title = Title;
	return TransactionContext;
}

int32 UTransBuffer::Begin(const TCHAR* SessionContext, const FText& Description)
{
	const int32 Result = ActiveCount;
	if (ActiveCount++ == 0)
	{
		// A new transaction sets the undone ones aside: they come back if it is cancelled.
		PreviousUndoCount = UndoCount;
		while (UndoCount > 0)
		{
			RemovedTransactions.Insert(UndoBuffer.Last(), 0);
			UndoBuffer.RemoveAt(UndoBuffer.Num() - 1);
			--UndoCount;
		}
		UndoBuffer.Add(MakeShared<FTransaction>(SessionContext, Description));
		GUndo = &UndoBuffer.Last().Get();
	}
	return Result;
}

int32 UTransBuffer::End()
{
	// As the engine: the number of open levels when End was called, so 1 means the transaction closed.
	const int32 Result = ActiveCount;
	if (ActiveCount > 0 && --ActiveCount == 0)
	{
		GUndo = nullptr;
		FTransaction& Transaction = UndoBuffer.Last().Get();
		Transaction.Finalize();
		// A transaction that changed nothing leaves no undo step.
		if (Transaction.IsTransient())
		{
			UndoBuffer.RemoveAt(UndoBuffer.Num() - 1);
		}
		RemovedTransactions.Reset();
		PreviousUndoCount = INDEX_NONE;
	}
	return Result;
}

void UTransBuffer::Cancel(int32 StartIndex)
{
	if (ActiveCount == 0)
	{
		return;
	}
	// As the engine: a partial cancel is not supported and cancels the whole transaction.
	GUndo = nullptr;
	UndoBuffer.RemoveAt(UndoBuffer.Num() - 1);
	UndoBuffer.Append(RemovedTransactions);
	RemovedTransactions.Reset();
	UndoCount = PreviousUndoCount;
	PreviousUndoCount = INDEX_NONE;
	ActiveCount = 0;
}

void UTransBuffer::Reset(const FText& Reason)
{
	check(ActiveCount == 0);
	UndoBuffer.Reset();
	UndoCount = 0;
}

bool UTransBuffer::CanUndo(FText* Text)
{
	return ActiveCount == 0 && UndoCount < UndoBuffer.Num();
}

const FTransaction* UTransBuffer::GetTransaction(int32 QueueIndex) const
{
	return UndoBuffer.IsValidIndex(QueueIndex) ? &UndoBuffer[QueueIndex].Get() : nullptr;
}

bool UTransBuffer::Undo(bool bCanRedo)
{
	if (!CanUndo())
	{
		return false;
	}
	++UndoCount;
	UndoBuffer[UndoBuffer.Num() - UndoCount]->Apply();
	return true;
}

UTransactor* UEditorEngine::CreateTrans()
{
	return NewObject<UTransBuffer>(GetTransientPackage(), TEXT("TransBuffer"));
}

int32 UEditorEngine::BeginTransaction(const TCHAR* TransactionContext, const FText& Description, UObject* PrimaryObject)
{
	return Trans ? Trans->Begin(TransactionContext, Description) : INDEX_NONE;
}

int32 UEditorEngine::BeginTransaction(const FText& Description)
{
	return BeginTransaction(nullptr, Description, nullptr);
}

bool UEditorEngine::CanTransact()
{
	return Trans != nullptr;
}

int32 UEditorEngine::EndTransaction()
{
	return Trans ? Trans->End() : INDEX_NONE;
}

void UEditorEngine::CancelTransaction(int32 Index)
{
	if (Trans)
	{
		Trans->Cancel(Index);
	}
}

void UEditorEngine::ResetTransaction(const FText& Reason)
{
	if (Trans)
	{
		Trans->Reset(Reason);
	}
}

bool UEditorEngine::UndoTransaction(bool bCanRedo)
{
	return Trans && Trans->Undo(bCanRedo);
}

FScopedTransaction::FScopedTransaction(const TCHAR* TransactionContext, const FText& SessionName, UObject* PrimaryObject, const bool bShouldActuallyTransact)
{
	Construct(TransactionContext, SessionName, PrimaryObject, bShouldActuallyTransact);
}

FScopedTransaction::FScopedTransaction(const FText& SessionName, const bool bShouldActuallyTransact)
{
	Construct(TEXT(""), SessionName, nullptr, bShouldActuallyTransact);
}

void FScopedTransaction::Construct(const TCHAR* TransactionContext, const FText& SessionName, UObject* PrimaryObject, const bool bShouldActuallyTransact)
{
	if (bShouldActuallyTransact && GEditor && GEditor->CanTransact() && !GEditor->IsSimulatingInEditor())
	{
		Index = GEditor->BeginTransaction(TransactionContext, SessionName, PrimaryObject);
		check(IsOutstanding());
	}
	else
	{
		Index = -1;
	}
}

FScopedTransaction::~FScopedTransaction()
{
	if (Index != -1)
	{
		GEditor->EndTransaction();
	}
}

void FScopedTransaction::Cancel()
{
	if (Index != -1)
	{
		GEditor->CancelTransaction(Index);
		Index = -1;
	}
}

bool FScopedTransaction::IsOutstanding() const
{
	return Index >= 0;
}
