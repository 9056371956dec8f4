#include "Components/SceneCaptureComponent2D.h"
#include "CoreGlobals.h"
#include "Editor.h"
#include "Editor/UnrealEdEngine.h"
#include "Engine/Level.h"
#include "Engine/SceneCapture2D.h"
#include "Engine/TextureRenderTarget2D.h"
#include "Engine/World.h"
#include "GameFramework/Actor.h"
#include "HeadlessEditorEngine.h"
#include "Kismet/GameplayStatics.h"
#include "Misc/ITransaction.h"
#include "Templates/Casts.h"
#include "UObject/Package.h"
#include "UnrealEdGlobals.h"
#include "Support/RecordingTransaction.h"

#include <gtest/gtest.h>

namespace
{
	/** Records what Modify saves, as the editor's transaction buffer would. */
	class Object : public ::testing::Test
	{
	protected:
		virtual void SetUp() override
		{
			UE::Headless::CreateEditorEngine();
			World = GEditor->GetEditorWorldContext().World();
		}
		virtual void TearDown() override
		{
			GUndo = nullptr;
			UE::Headless::DestroyEditorEngine();
		}

		UWorld* World = nullptr;
	};
}

TEST_F(Object, EditorSessionHasAnEditorWorldWithAPersistentLevel)
{
	EXPECT_EQ(GEditor, (UEditorEngine*)GUnrealEd);
	ASSERT_NE(World, nullptr);
	EXPECT_EQ(World->WorldType, EWorldType::Editor);
	ASSERT_NE(World->PersistentLevel, nullptr);
	EXPECT_EQ(World->PersistentLevel->OwningWorld, World);
	EXPECT_EQ(World->PersistentLevel->GetWorld(), World);
	EXPECT_TRUE(World->PersistentLevel->Actors.IsEmpty());
	EXPECT_FALSE(World->GetOutermost()->IsDirty());
}

TEST_F(Object, SpawnedActorsGetClassNamesTheLevelAsOuterAndTheirDefaultSubobjects)
{
	AActor* First = World->SpawnActor<AActor>();
	ASceneCapture2D* Capture = World->SpawnActor<ASceneCapture2D>(FVector(1.0, 2.0, 3.0), FRotator(0.0, 90.0, 0.0));
	AActor* Second = World->SpawnActor(AActor::StaticClass());
	EXPECT_EQ(First->GetName(), TEXT("Actor_0"));
	EXPECT_EQ(Second->GetName(), TEXT("Actor_1"));
	EXPECT_EQ(Capture->GetName(), TEXT("SceneCapture2D_0"));
	EXPECT_EQ(Capture->GetOuter(), World->PersistentLevel);
	EXPECT_EQ(Capture->GetWorld(), World);
	EXPECT_TRUE(Capture->HasAnyFlags(RF_Transactional));

	USceneCaptureComponent2D* Component = Capture->GetCaptureComponent2D();
	ASSERT_NE(Component, nullptr);
	EXPECT_EQ(Component->GetOwner(), Capture);
	EXPECT_EQ(Component->GetWorld(), World);
	EXPECT_TRUE(Component->HasAnyFlags(RF_DefaultSubObject));
	EXPECT_EQ(Component->GetPathName(), TEXT("/Temp/Untitled_1.Untitled_1:PersistentLevel.SceneCapture2D_0.NewSceneCaptureComponent2D"));
	EXPECT_EQ(Capture->GetActorLocation(), FVector(1.0, 2.0, 3.0));
	EXPECT_EQ(Capture->GetActorRotation().Yaw, 90.0);
	EXPECT_EQ(First->GetActorLocation(), FVector::ZeroVector);

	// A spawned actor's archetype is its class default object; its component's is the default object's component.
	ASceneCapture2D* Defaults = GetMutableDefault<ASceneCapture2D>();
	EXPECT_EQ(Capture->GetArchetype(), Defaults);
	EXPECT_EQ(Component->GetArchetype(), Defaults->GetCaptureComponent2D());
	EXPECT_NE(Component, Defaults->GetCaptureComponent2D());
	EXPECT_EQ(World->SpawnActor(UTextureRenderTarget2D::StaticClass()), nullptr);
}

TEST_F(Object, GetAllActorsOfClassKeepsSpawnOrderAndFiltersByClass)
{
	ASceneCapture2D* A = World->SpawnActor<ASceneCapture2D>();
	AActor* B = World->SpawnActor<AActor>();
	ASceneCapture2D* C = World->SpawnActor<ASceneCapture2D>();
	TArray<AActor*> Found;
	UGameplayStatics::GetAllActorsOfClass(World, ASceneCapture2D::StaticClass(), Found);
	EXPECT_EQ(Found, (TArray<AActor*>{A, C}));
	UGameplayStatics::GetAllActorsOfClass(B, AActor::StaticClass(), Found);
	EXPECT_EQ(Found, (TArray<AActor*>{A, B, C}));
	A->Destroy();
	UGameplayStatics::GetAllActorsOfClass(World, ASceneCapture2D::StaticClass(), Found);
	EXPECT_EQ(Found, (TArray<AActor*>{C}));
}

TEST_F(Object, DestroyedActorsAndTheirComponentsStaleWeakPointers)
{
	ASceneCapture2D* Capture = World->SpawnActor<ASceneCapture2D>();
	TWeakObjectPtr<AActor> WeakActor = Capture;
	TWeakObjectPtr<USceneCaptureComponent2D> WeakComponent = Capture->GetCaptureComponent2D();
	EXPECT_TRUE(WeakActor.IsValid());
	EXPECT_FALSE(WeakActor.IsStale());

	EXPECT_TRUE(Capture->Destroy());
	EXPECT_FALSE(WeakActor.IsValid());
	EXPECT_EQ(WeakActor.Get(), nullptr);
	EXPECT_TRUE(WeakActor.IsStale());
	EXPECT_EQ(WeakComponent.Get(), nullptr);
	EXPECT_FALSE(World->PersistentLevel->Actors.Contains(Capture));

	CollectGarbage(RF_NoFlags);
	EXPECT_EQ(WeakActor.Get(), nullptr);
	EXPECT_TRUE(WeakComponent.IsStale());
	// A new object reusing the freed slot does not revive the old pointer.
	AActor* Next = World->SpawnActor<AActor>();
	EXPECT_NE(WeakActor.Get(), Next);
	EXPECT_TRUE(TWeakObjectPtr<AActor>().IsExplicitlyNull());
}

TEST_F(Object, TearingTheSessionDownDestroysEveryObjectItMade)
{
	TWeakObjectPtr<AActor> Actor = World->SpawnActor<AActor>();
	TWeakObjectPtr<UTextureRenderTarget2D> Asset = NewObject<UTextureRenderTarget2D>(CreatePackage(TEXT("/Game/Stage")));
	TWeakObjectPtr<UWorld> OldWorld = World;
	UE::Headless::DestroyEditorEngine();
	EXPECT_EQ(GEditor, nullptr);
	EXPECT_TRUE(Actor.IsStale());
	EXPECT_TRUE(Asset.IsStale());
	EXPECT_TRUE(OldWorld.IsStale());
	EXPECT_EQ(FindObject<UPackage>(nullptr, TEXT("/Game/Stage")), nullptr);

	UE::Headless::CreateEditorEngine();
	World = GEditor->GetEditorWorldContext().World();
	EXPECT_TRUE(World->PersistentLevel->Actors.IsEmpty());
	EXPECT_EQ(World->SpawnActor<AActor>()->GetName(), TEXT("Actor_0"));
}

TEST_F(Object, CastsCheckTheClass)
{
	AActor* Plain = World->SpawnActor<AActor>();
	AActor* Capture = World->SpawnActor<ASceneCapture2D>();
	EXPECT_EQ(Cast<ASceneCapture2D>(Plain), nullptr);
	EXPECT_EQ(Cast<ASceneCapture2D>(Capture), Capture);
	EXPECT_EQ(CastChecked<ASceneCapture2D>(TWeakObjectPtr<UObject>(Capture)), Capture);
	EXPECT_EQ(CastChecked<AActor>((UObject*)nullptr, ECastCheckedType::NullAllowed), nullptr);
	EXPECT_DEATH(CastChecked<ASceneCapture2D>(Plain), "Cast of Actor /Temp/Untitled_1.Untitled_1:PersistentLevel.Actor_0 to SceneCapture2D failed");
	EXPECT_DEATH(CastChecked<ASceneCapture2D>(TWeakObjectPtr<AActor>(Plain)), "to SceneCapture2D failed");
	EXPECT_DEATH(CastChecked<AActor>((UObject*)nullptr), "Cast of nullptr to Actor failed");
}

TEST_F(Object, NewObjectNamesFindsAndCopiesFromATemplate)
{
	UPackage* Package = CreatePackage(TEXT("/Game/LivestreamWizard/Stage"));
	UTextureRenderTarget2D* First = NewObject<UTextureRenderTarget2D>(Package);
	UTextureRenderTarget2D* Second = NewObject<UTextureRenderTarget2D>(Package);
	EXPECT_EQ(First->GetName(), TEXT("TextureRenderTarget2D_0"));
	EXPECT_EQ(Second->GetName(), TEXT("TextureRenderTarget2D_1"));
	EXPECT_EQ(First->GetPackage(), Package);
	EXPECT_EQ(FindObject<UTextureRenderTarget2D>(Package, TEXT("TextureRenderTarget2D_1")), Second);
	EXPECT_EQ(StaticFindObject(UTextureRenderTarget2D::StaticClass(), nullptr, TEXT("/Game/LivestreamWizard/Stage.TextureRenderTarget2D_0")), First);
	EXPECT_EQ(First->GetArchetype(), UTextureRenderTarget2D::StaticClass()->GetDefaultObject());

	First->SizeX = 1920;
	UTextureRenderTarget2D* Copy = NewObject<UTextureRenderTarget2D>(Package, TEXT("Copy"), RF_NoFlags, First);
	EXPECT_EQ(Copy->SizeX, 1920);
	EXPECT_EQ(Copy->GetArchetype(), First);
	EXPECT_DEATH(NewObject<UTextureRenderTarget2D>(Package, TEXT("Copy")), "an object of that name already exists");
	EXPECT_DEATH(NewObject<UTexture>(Package), "Creating an instance of an abstract class is not allowed");
	EXPECT_DEATH(First->CreateDefaultSubobject<USceneComponent>(TEXT("Late")), "CreateDefaultSubobject can only be used inside of UObject constructors");
}

TEST_F(Object, ModifyRecordsInTheOpenTransactionAndDirtiesThePackage)
{
	AActor* Actor = World->SpawnActor<AActor>();
	UPackage* MapPackage = World->GetOutermost();
	ASSERT_FALSE(MapPackage->IsDirty());
	FRecordingTransaction Transaction;
	GUndo = &Transaction;
	EXPECT_TRUE(Actor->Modify());
	EXPECT_TRUE(Transaction.Saved.Contains(Actor));
	EXPECT_TRUE(MapPackage->IsDirty());

	// Without a transaction, Modify still dirties the package but saves nothing.
	GUndo = nullptr;
	MapPackage->SetDirtyFlag(false);
	EXPECT_FALSE(Actor->Modify(false));
	EXPECT_FALSE(MapPackage->IsDirty());
	EXPECT_FALSE(Actor->Modify());
	EXPECT_TRUE(MapPackage->IsDirty());

	// Objects in the transient package never dirty it.
	UTextureRenderTarget2D* Transient = NewObject<UTextureRenderTarget2D>();
	Transient->Modify();
	EXPECT_FALSE(GetTransientPackage()->IsDirty());
}

TEST_F(Object, PlaySessionStartsWhenTheQueuedRequestRunsAndEndsOnEndPlayMap)
{
	EXPECT_FALSE(GEditor->IsPlayingSessionInEditor());
	GEditor->RequestPlaySession(FRequestPlaySessionParams());
	EXPECT_FALSE(GEditor->IsPlayingSessionInEditor());
	EXPECT_TRUE(GEditor->IsPlaySessionInProgress());

	GEditor->StartQueuedPlaySessionRequest();
	EXPECT_TRUE(GEditor->IsPlayingSessionInEditor());
	EXPECT_FALSE(GEditor->IsPlaySessionRequestQueued());
	ASSERT_NE(GEditor->PlayWorld, nullptr);
	EXPECT_TRUE(GEditor->PlayWorld->IsPlayInEditor());
	EXPECT_NE(GEditor->PlayWorld.Get(), World);

	GEditor->RequestEndPlayMap();
	EXPECT_TRUE(GEditor->ShouldEndPlayMap());
	EXPECT_TRUE(GEditor->IsPlayingSessionInEditor());
	GEditor->EndPlayMap();
	EXPECT_FALSE(GEditor->IsPlayingSessionInEditor());
	EXPECT_EQ(GEditor->PlayWorld, nullptr);
	EXPECT_FALSE(GEditor->ShouldEndPlayMap());
}
