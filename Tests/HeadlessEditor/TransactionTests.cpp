#include "Editor.h"
#include "Editor/TransBuffer.h"
#include "Editor/Transactor.h"
#include "Editor/UnrealEdEngine.h"
#include "Engine/Level.h"
#include "Engine/TextureRenderTarget2D.h"
#include "Engine/World.h"
#include "GameFramework/Actor.h"
#include "HeadlessEditorEngine.h"
#include "Internationalization/Internationalization.h"
#include "Misc/ITransaction.h"
#include "ScopedTransaction.h"
#include "Selection.h"
#include "UObject/Package.h"
#include "UnrealEdGlobals.h"

#include <gtest/gtest.h>

namespace
{
	class Transaction : public ::testing::Test
	{
	protected:
		virtual void SetUp() override
		{
			UE::Headless::CreateEditorEngine();
			World = GEditor->GetEditorWorldContext().World();
			Target = NewObject<UTextureRenderTarget2D>(CreatePackage(TEXT("/Game/Stage/Feed")), TEXT("Feed"), RF_Public | RF_Standalone | RF_Transactional);
			Target->SizeX = 256;
		}
		virtual void TearDown() override
		{
			UE::Headless::DestroyEditorEngine();
		}

		UTransactor* Trans() const { return GEditor->Trans; }

		UWorld* World = nullptr;
		UTextureRenderTarget2D* Target = nullptr;
	};
}

TEST_F(Transaction, OnlyTheOutermostScopeRecordsAnUndoStep)
{
	{
		FScopedTransaction Outer(NSLOCTEXT("Tests", "Outer", "Resize feed"));
		EXPECT_TRUE(Outer.IsOutstanding());
		Target->Modify();
		Target->SizeX = 512;
		{
			FScopedTransaction Inner(NSLOCTEXT("Tests", "Inner", "Inner step"));
			EXPECT_TRUE(Inner.IsOutstanding());
			Target->Modify();
			Target->SizeY = 128;
		}
		EXPECT_TRUE(Trans()->IsActive());
		EXPECT_EQ(Trans()->GetQueueLength(), 1);
	}
	EXPECT_FALSE(Trans()->IsActive());
	ASSERT_EQ(Trans()->GetQueueLength(), 1);
	const FTransaction* Transaction = Trans()->GetTransaction(0);
	EXPECT_TRUE(Transaction->GetTitle().ToString().Equals(TEXT("Resize feed")));
	// The object once, however often it was modified, and its package, which Modify dirtied.
	EXPECT_EQ(Transaction->GetRecordCount(), 2);
	EXPECT_TRUE(Transaction->ContainsObject(Target));
	EXPECT_TRUE(Transaction->ContainsObject(Target->GetOutermost()));
}

TEST_F(Transaction, BeginAndEndCountTheOpenLevels)
{
	EXPECT_EQ(GEditor->BeginTransaction(NSLOCTEXT("Tests", "A", "A")), 0);
	EXPECT_EQ(GEditor->BeginTransaction(NSLOCTEXT("Tests", "B", "B")), 1);
	Target->Modify();
	Target->SizeX = 1;
	// End answers the number of levels open when it was called: 1 means the transaction closed.
	EXPECT_EQ(GEditor->EndTransaction(), 2);
	EXPECT_TRUE(Trans()->IsActive());
	EXPECT_EQ(GEditor->EndTransaction(), 1);
	EXPECT_FALSE(Trans()->IsActive());
	EXPECT_EQ(GEditor->EndTransaction(), 0);
	EXPECT_EQ(Trans()->GetQueueLength(), 1);
}

TEST_F(Transaction, TransactionsThatChangeNothingLeaveNoUndoStep)
{
	{
		FScopedTransaction Empty(NSLOCTEXT("Tests", "Empty", "Nothing"));
	}
	EXPECT_EQ(Trans()->GetQueueLength(), 0);

	// Modified but left as it was: the engine finds no difference and drops the transaction.
	{
		FScopedTransaction Unchanged(NSLOCTEXT("Tests", "Unchanged", "Touch"));
		Target->Modify();
	}
	EXPECT_EQ(Trans()->GetQueueLength(), 0);
	EXPECT_FALSE(GEditor->UndoTransaction());

	{
		FScopedTransaction Changed(NSLOCTEXT("Tests", "Changed", "Change"));
		Target->Modify();
		Target->ClearColor = FLinearColor(1.0f, 0.0f, 0.0f, 1.0f);
	}
	EXPECT_EQ(Trans()->GetQueueLength(), 1);
}

TEST_F(Transaction, UndoRestoresModifiedPropertiesAndThePackageState)
{
	UPackage* Package = Target->GetOutermost();
	Package->SetDirtyFlag(false);
	const int32 OriginalSizeY = Target->SizeY;
	{
		FScopedTransaction Transaction(NSLOCTEXT("Tests", "Resize", "Resize"));
		Target->Modify();
		Target->SizeX = 1920;
		Target->SizeY = 1080;
	}
	EXPECT_TRUE(Package->IsDirty());
	// Changes made after the transaction closed are not part of it, but undo still restores the saved state.
	Target->SizeY = 720;

	EXPECT_TRUE(Trans()->CanUndo());
	EXPECT_TRUE(GEditor->UndoTransaction());
	EXPECT_EQ(Target->SizeX, 256);
	EXPECT_EQ(Target->SizeY, OriginalSizeY);
	EXPECT_FALSE(Package->IsDirty());
	EXPECT_EQ(Trans()->GetUndoCount(), 1);
	EXPECT_FALSE(Trans()->CanUndo());
	EXPECT_FALSE(GEditor->UndoTransaction());
}

TEST_F(Transaction, ObjectsWithoutTheTransactionalFlagAreNotRecorded)
{
	UTextureRenderTarget2D* Plain = NewObject<UTextureRenderTarget2D>(CreatePackage(TEXT("/Game/Stage/Plain")), TEXT("Plain"));
	{
		FScopedTransaction Transaction(NSLOCTEXT("Tests", "Plain", "Plain"));
		Plain->Modify();
		Plain->SizeX = 64;
	}
	EXPECT_EQ(Trans()->GetQueueLength(), 0);
}

TEST_F(Transaction, UndoRemovesActorsSpawnedInTheTransaction)
{
	AActor* Before = World->SpawnActor<AActor>();
	AActor* Spawned = nullptr;
	{
		FScopedTransaction Transaction(NSLOCTEXT("Tests", "Spawn", "Spawn"));
		Spawned = World->SpawnActor<AActor>();
		GEditor->SelectActor(Spawned, true, true);
	}
	ASSERT_EQ(Trans()->GetQueueLength(), 1);
	EXPECT_EQ(World->PersistentLevel->Actors.Num(), 2);

	const TWeakObjectPtr<AActor> WeakSpawned(Spawned);
	EXPECT_TRUE(GEditor->UndoTransaction());
	EXPECT_FALSE(WeakSpawned.IsValid());
	ASSERT_EQ(World->PersistentLevel->Actors.Num(), 1);
	EXPECT_EQ(World->PersistentLevel->Actors[0], Before);
	EXPECT_EQ(GEditor->GetSelectedActors()->Num(), 0);
}

TEST_F(Transaction, AScopeAskedNotToTransactRecordsNothing)
{
	{
		FScopedTransaction Transaction(NSLOCTEXT("Tests", "No", "No"), false);
		EXPECT_FALSE(Transaction.IsOutstanding());
		EXPECT_FALSE(Trans()->IsActive());
		Target->Modify();
		Target->SizeX = 2;
	}
	EXPECT_EQ(Trans()->GetQueueLength(), 0);
	EXPECT_EQ(Target->SizeX, 2);
}

TEST_F(Transaction, CancellingDropsTheWholeTransactionEvenFromANestedScope)
{
	{
		FScopedTransaction Outer(NSLOCTEXT("Tests", "Outer", "Outer"));
		Target->Modify();
		Target->SizeX = 3;
		FScopedTransaction Inner(NSLOCTEXT("Tests", "Inner", "Inner"));
		Inner.Cancel();
		EXPECT_FALSE(Inner.IsOutstanding());
		// The engine does not cancel part of a transaction: the outer one is gone too.
		EXPECT_FALSE(Trans()->IsActive());
		EXPECT_EQ(Trans()->GetQueueLength(), 0);
	}
	EXPECT_EQ(Trans()->GetQueueLength(), 0);
	EXPECT_FALSE(Trans()->IsActive());
}

TEST_F(Transaction, ANewTransactionDropsUndoneStepsUnlessItIsCancelled)
{
	{
		FScopedTransaction First(NSLOCTEXT("Tests", "First", "First"));
		Target->Modify();
		Target->SizeX = 10;
	}
	ASSERT_TRUE(GEditor->UndoTransaction());
	EXPECT_EQ(Trans()->GetUndoCount(), 1);

	// A cancelled transaction gives the undone step back.
	{
		FScopedTransaction Cancelled(NSLOCTEXT("Tests", "Cancelled", "Cancelled"));
		Cancelled.Cancel();
	}
	EXPECT_EQ(Trans()->GetQueueLength(), 1);
	EXPECT_EQ(Trans()->GetUndoCount(), 1);

	{
		FScopedTransaction Second(NSLOCTEXT("Tests", "Second", "Second"));
		Target->Modify();
		Target->SizeY = 20;
	}
	ASSERT_EQ(Trans()->GetQueueLength(), 1);
	EXPECT_EQ(Trans()->GetUndoCount(), 0);
	EXPECT_TRUE(Trans()->GetTransaction(0)->GetTitle().ToString().Equals(TEXT("Second")));
}

TEST_F(Transaction, UndoIsRefusedWhileATransactionIsOpen)
{
	{
		FScopedTransaction First(NSLOCTEXT("Tests", "First", "First"));
		Target->Modify();
		Target->SizeX = 10;
	}
	FScopedTransaction Open(NSLOCTEXT("Tests", "Open", "Open"));
	EXPECT_FALSE(Trans()->CanUndo());
	EXPECT_FALSE(GEditor->UndoTransaction());
	EXPECT_EQ(Target->SizeX, 10);
}

TEST_F(Transaction, SelectionFollowsSelectActorAndSelectNone)
{
	AActor* First = World->SpawnActor<AActor>();
	AActor* Second = World->SpawnActor<AActor>();
	USelection* Selection = GEditor->GetSelectedActors();
	EXPECT_EQ(Selection, GEditor->GetSelectedActors());
	EXPECT_NE(Selection, GEditor->GetSelectedObjects());

	GEditor->SelectActor(First, true, true);
	GEditor->SelectActor(Second, true, true);
	GEditor->SelectActor(First, true, true);
	ASSERT_EQ(Selection->Num(), 2);
	EXPECT_EQ(Selection->GetSelectedObject(0), First);
	EXPECT_EQ(Selection->GetSelectedObject(1), Second);

	GEditor->SelectActor(First, false, true);
	EXPECT_FALSE(Selection->IsSelected(First));
	EXPECT_TRUE(Selection->IsSelected(Second));

	GEditor->SelectNone(true, true);
	EXPECT_EQ(Selection->Num(), 0);
}

TEST_F(Transaction, DeselectAllFiltersByClassAndDestroyedActorsReadAsNull)
{
	AActor* Actor = World->SpawnActor<AActor>();
	USelection* Selection = GEditor->GetSelectedObjects();
	Selection->Select(Actor);
	Selection->Select(Target);

	Selection->DeselectAll(AActor::StaticClass());
	ASSERT_EQ(Selection->Num(), 1);
	EXPECT_EQ(Selection->GetSelectedObject(0), Target);

	AActor* Doomed = World->SpawnActor<AActor>();
	Selection->Select(Doomed);
	World->DestroyActor(Doomed);
	TArray<AActor*> Actors;
	EXPECT_EQ(Selection->GetSelectedObjects(Actors), 0);
	EXPECT_EQ(Selection->GetSelectedObject(1), nullptr);
	Selection->DeselectAll();
	EXPECT_EQ(Selection->Num(), 0);
}
