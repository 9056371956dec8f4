#include "ScopedTransaction.h"

#include "CoreGlobals.h"
#include "Headless/HeadlessTransactions.h"
#include "Misc/ITransaction.h"

namespace
{
	TArray<UE::Headless::FRecordedTransaction>& GetMutableTransactions()
	{
		static TArray<UE::Headless::FRecordedTransaction> Transactions;
		return Transactions;
	}

	/** Collects the objects modified while the outermost scope is open into the latest record. */
	class FRecordingTransaction final : public ITransaction
	{
	public:
		virtual void SaveObject(UObject* Object) override
		{
			TArray<UObject*>& Modified = GetMutableTransactions().Last().ModifiedObjects;
			if (!Modified.Contains(Object))
			{
				Modified.Add(Object);
			}
		}
	};

	FRecordingTransaction GRecordingTransaction;
}

namespace UE::Headless
{
	const TArray<FRecordedTransaction>& GetRecordedTransactions()
	{
		return GetMutableTransactions();
	}

	void ResetRecordedTransactions()
	{
		check(GUndo != &GRecordingTransaction);
		GetMutableTransactions().Reset();
	}
}

FScopedTransaction::FScopedTransaction(const TCHAR* TransactionContext, const FText& SessionName, UObject* PrimaryObject, const bool bShouldActuallyTransact)
{
	Construct(SessionName, bShouldActuallyTransact);
}

FScopedTransaction::FScopedTransaction(const FText& SessionName, const bool bShouldActuallyTransact)
{
	Construct(SessionName, bShouldActuallyTransact);
}

void FScopedTransaction::Construct(const FText& SessionName, const bool bShouldActuallyTransact)
{
	if (bShouldActuallyTransact && GUndo == nullptr)
	{
		UE::Headless::FRecordedTransaction& Record = GetMutableTransactions().AddDefaulted_GetRef();
		Record.Title = SessionName;
		GUndo = &GRecordingTransaction;
		bOutermost = true;
	}
}

FScopedTransaction::~FScopedTransaction()
{
	if (bOutermost)
	{
		GetMutableTransactions().Last().bOpen = false;
		GUndo = nullptr;
	}
}
