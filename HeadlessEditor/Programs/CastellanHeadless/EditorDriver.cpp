#include "EditorDriver.h"

#include "Editor/Transactor.h"
#include "Engine/TextureRenderTarget2D.h"
#include "GameFramework/Actor.h"
#include "HeadlessDesktop.h"
#include "KyroMediaOutput.h"
#include "KyroNDISenderManager.h"
#include "KyroSpoutSenderManager.h"
#include "KyroVirtualWebcamOutput.h"
#include "LevelDriver.h"
#include "LivestreamWizardDriver.h"
#include "Misc/OutputDevice.h"
#include "Misc/OutputDeviceRedirector.h"
#include "Views/ViewOutline.h"
#include "Widgets/Docking/SDockTab.h"

namespace
{
	const TCHAR* const WizardContentFolder = TEXT("/Game/LivestreamWizard");

	/** Records the log lines of warning level or worse for as long as it lives. */
	class FLogRecorder : public FOutputDevice
	{
	public:
		FLogRecorder() { GLog->AddOutputDevice(this); }
		virtual ~FLogRecorder() override { GLog->RemoveOutputDevice(this); }

		virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category) override
		{
			const ELogVerbosity::Type Level = static_cast<ELogVerbosity::Type>(Verbosity & ELogVerbosity::VerbosityMask);
			if (Level != ELogVerbosity::NoLogging && Level <= ELogVerbosity::Warning)
			{
				FEditorMessage& Message = Lines.AddDefaulted_GetRef();
				Message.Kind = FEditorMessage::EKind::LogLine;
				Message.Text = V;
				Message.Category = Category.ToString();
				Message.Verbosity = Level;
			}
		}

		TArray<FEditorMessage> Lines;
	};

	TArray<FEditorMessage> GetMessageBoxesSince(int32 FirstIndex)
	{
		TArray<FEditorMessage> Boxes;
		const TArray<UE::Headless::FShownMessageDialog>& Dialogs = UE::Headless::GetShownMessageDialogs();
		for (int32 Index = FirstIndex; Index < Dialogs.Num(); ++Index)
		{
			FEditorMessage& Box = Boxes.AddDefaulted_GetRef();
			Box.Kind = FEditorMessage::EKind::MessageBox;
			Box.Text = Dialogs[Index].Message.ToString();
		}
		return Boxes;
	}

	FString GetObjectPath(const UObject* Object)
	{
		return Object ? Object->GetPathName() : FString();
	}

	template <typename EntryType>
	TArray<FSenderSnapshot> SnapshotSenders(const TArray<EntryType>& Entries)
	{
		TArray<FSenderSnapshot> Senders;
		for (const EntryType& Entry : Entries)
		{
			Senders.Add({Entry.SenderName, Entry.StandaloneSenderName, Entry.bEnabled, GetObjectPath(Entry.RenderTarget)});
		}
		return Senders;
	}

	FActorSnapshot SnapshotActor(const AActor& Actor)
	{
		FActorSnapshot Snapshot;
		Snapshot.Name = Actor.GetName();
		Snapshot.ClassName = Actor.GetClass()->GetName();
		Snapshot.Location = Actor.GetActorLocation();
		if (const AKyroSpoutSenderManager* Spout = Cast<AKyroSpoutSenderManager>(&Actor))
		{
			Snapshot.Senders = SnapshotSenders(Spout->Senders);
		}
		else if (const AKyroNDISenderManager* NDI = Cast<AKyroNDISenderManager>(&Actor))
		{
			Snapshot.Senders = SnapshotSenders(NDI->Senders);
		}
		else if (const AKyroMediaOutput* MediaOutput = Cast<AKyroMediaOutput>(&Actor))
		{
			Snapshot.OutputRenderTarget = GetObjectPath(MediaOutput->RenderTarget);
		}
		else if (const AKyroVirtualWebcamOutput* Webcam = Cast<AKyroVirtualWebcamOutput>(&Actor))
		{
			Snapshot.OutputRenderTarget = GetObjectPath(Webcam->RenderTarget);
		}
		return Snapshot;
	}

	FLevelSnapshot TakeLevelSnapshot()
	{
		FLevelSnapshot Level;
		for (const AActor* Actor : FLevelDriver::GetActors())
		{
			Level.Actors.Add(SnapshotActor(*Actor));
		}
		for (const AActor* Actor : FLevelDriver::GetSelectedActors())
		{
			Level.SelectedActors.Add(Actor->GetName());
		}
		for (const UObject* Asset : FLevelDriver::GetAssets(WizardContentFolder))
		{
			Level.Assets.Add({Asset->GetPathName(), Asset->GetClass()->GetName(), FLevelDriver::IsPackageDirty(Asset)});
		}
		const UTransactor* History = FLevelDriver::GetTransactionHistory();
		for (int32 Index = 0; History && Index < History->GetQueueLength(); ++Index)
		{
			Level.UndoHistory.Add(History->GetTransaction(Index)->GetTitle().ToString());
		}
		return Level;
	}
}

FCreateResult CastellanEditorDriver::CreateLivestream(const FLivestreamWizardInputs& Inputs)
{
	const TSharedRef<SDockTab> Tab = FLivestreamWizardDriver::OpenFromToolbar();
	const TSharedRef<SWidget> Wizard = Tab->GetContent();
	FCreateResult Result;
	Result.Name = Inputs.Name.Get(FString());
	const int32 FirstMessageBox = UE::Headless::GetShownMessageDialogs().Num();
	{
		FLogRecorder Log;
		FLivestreamWizardDriver::FillIn(Wizard, Inputs);
		FLivestreamWizardDriver::PressCreate(Wizard);
		Result.EditorMessages = GetMessageBoxesSince(FirstMessageBox);
		Result.EditorMessages.Append(Log.Lines);
	}
	Result.Wizard = FLivestreamWizardDriver::ReadResult(Wizard);
	Result.WizardOutline = FViewOutline::Describe(Tab, FLivestreamWizardDriver::GetDockedTabSize());
	Result.Level = TakeLevelSnapshot();
	return Result;
}
