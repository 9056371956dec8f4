#include "Editor.h"
#include "Editor/EditorEngine.h"
#include "EditorViewportClient.h"
#include "Engine/World.h"
#include "HeadlessEditorSession.h"
#include "LevelEditorViewport.h"
#include "PlayInEditorDataTypes.h"
#include "Templates/SharedPointer.h"

#include <gtest/gtest.h>

namespace
{
	class LevelViewport : public ::testing::Test
	{
	protected:
		LevelViewport()
			: Session(MakeOptions())
		{
		}

		/** No viewports of the session's own, so the clients here are the only ones. */
		static FHeadlessEditorOptions MakeOptions()
		{
			FHeadlessEditorOptions Options;
			Options.bStartEditorModule = false;
			Options.LevelViewports.Reset();
			Options.ActiveLevelViewport = INDEX_NONE;
			return Options;
		}

		static TSharedPtr<FLevelEditorViewportClient> MakeClient() { return MakeShared<FLevelEditorViewportClient>(TSharedPtr<SLevelViewport>()); }

		static FRequestPlaySessionParams MakeRequest(EPlaySessionWorldType WorldType)
		{
			FRequestPlaySessionParams Params;
			Params.WorldType = WorldType;
			return Params;
		}

		FHeadlessEditorSession Session;
	};

	TEST_F(LevelViewport, ClientsRegisterWithTheEditorWhileTheyLive)
	{
		ASSERT_EQ(GEditor->GetLevelViewportClients().Num(), 0);

		TSharedPtr<FLevelEditorViewportClient> First = MakeClient();
		TSharedPtr<FLevelEditorViewportClient> Second = MakeClient();
		TSharedPtr<FLevelEditorViewportClient> Third = MakeClient();

		EXPECT_EQ(GEditor->GetLevelViewportClients(), TArray<FLevelEditorViewportClient*>({First.Get(), Second.Get(), Third.Get()}));
		EXPECT_EQ(GEditor->GetAllViewportClients(), TArray<FEditorViewportClient*>({First.Get(), Second.Get(), Third.Get()}));

		Second.Reset();

		EXPECT_EQ(GEditor->GetLevelViewportClients(), TArray<FLevelEditorViewportClient*>({First.Get(), Third.Get()}));
		EXPECT_EQ(GEditor->GetAllViewportClients(), TArray<FEditorViewportClient*>({First.Get(), Third.Get()}));
	}

	TEST_F(LevelViewport, ANewClientLooksFromTheOriginIntoTheEditorWorld)
	{
		TSharedPtr<FLevelEditorViewportClient> Client = MakeClient();

		EXPECT_EQ(Client->GetViewLocation(), FVector::ZeroVector);
		EXPECT_EQ(Client->GetViewRotation(), FRotator(0, 0, 0));
		EXPECT_EQ(Client->Viewport, nullptr);
		EXPECT_EQ(Client->GetWorld(), GEditor->GetEditorWorldContext().World());
	}

	TEST_F(LevelViewport, PlayingInEditorLeavesTheViewportOnTheEditorWorld)
	{
		TSharedPtr<FLevelEditorViewportClient> Client = MakeClient();
		UWorld* EditorWorld = GEditor->GetEditorWorldContext().World();

		GEditor->RequestPlaySession(MakeRequest(EPlaySessionWorldType::PlayInEditor));
		GEditor->StartQueuedPlaySessionRequest();
		ASSERT_NE(GEditor->PlayWorld, nullptr);
		EXPECT_FALSE(GEditor->IsSimulatingInEditor());

		EXPECT_EQ(Client->GetWorld(), EditorWorld);
		GEditor->EndPlayMap();
	}

	TEST_F(LevelViewport, SimulatingShowsThePlayWorldUntilTheSessionEnds)
	{
		TSharedPtr<FLevelEditorViewportClient> Client = MakeClient();
		UWorld* EditorWorld = GEditor->GetEditorWorldContext().World();

		GEditor->RequestPlaySession(MakeRequest(EPlaySessionWorldType::SimulateInEditor));
		EXPECT_FALSE(GEditor->IsSimulatingInEditor()) << "A queued request is not a session yet";
		GEditor->StartQueuedPlaySessionRequest();
		ASSERT_TRUE(GEditor->IsSimulatingInEditor());

		EXPECT_EQ(Client->GetWorld(), GEditor->PlayWorld.Get());

		GEditor->EndPlayMap();
		EXPECT_FALSE(GEditor->IsSimulatingInEditor());
		EXPECT_EQ(Client->GetWorld(), EditorWorld);
	}

	TEST_F(LevelViewport, PlaySessionRequestsAreQueuedUntilStartedOrCancelled)
	{
		GEditor->StartQueuedPlaySessionRequest();
		EXPECT_FALSE(GEditor->IsPlaySessionInProgress()) << "Starting with nothing queued does nothing";
		EXPECT_EQ(GEditor->PlayWorld, nullptr);

		GEditor->RequestPlaySession(MakeRequest(EPlaySessionWorldType::PlayInEditor));
		EXPECT_TRUE(GEditor->IsPlaySessionRequestQueued());
		EXPECT_TRUE(GEditor->IsPlaySessionInProgress());
		ASSERT_TRUE(GEditor->GetPlaySessionRequest().IsSet());
		EXPECT_EQ(GEditor->GetPlaySessionRequest()->WorldType, EPlaySessionWorldType::PlayInEditor);

		GEditor->CancelRequestPlaySession();
		EXPECT_FALSE(GEditor->IsPlaySessionRequestQueued());
		EXPECT_FALSE(GEditor->IsPlaySessionInProgress());
		GEditor->StartQueuedPlaySessionRequest();
		EXPECT_EQ(GEditor->PlayWorld, nullptr);
	}

	TEST_F(LevelViewport, EndingIsOnlyRequestedWhileThereIsAPlayWorld)
	{
		GEditor->RequestEndPlayMap();
		EXPECT_FALSE(GEditor->ShouldEndPlayMap());

		GEditor->RequestPlaySession(MakeRequest(EPlaySessionWorldType::PlayInEditor));
		GEditor->RequestEndPlayMap();
		EXPECT_FALSE(GEditor->ShouldEndPlayMap()) << "A queued request has no play world to end";

		GEditor->StartQueuedPlaySessionRequest();
		GEditor->RequestEndPlayMap();
		EXPECT_TRUE(GEditor->ShouldEndPlayMap());
		GEditor->EndPlayMap();
		EXPECT_FALSE(GEditor->ShouldEndPlayMap());
	}
}
