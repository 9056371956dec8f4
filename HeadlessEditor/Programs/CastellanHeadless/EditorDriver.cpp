#include "EditorDriver.h"

#include "CastellanEditor.h"
#include "Editor/Transactor.h"
#include "Engine/TextureRenderTarget2D.h"
#include "Framework/Docking/TabManager.h"
#include "GameFramework/Actor.h"
#include "HeadlessDesktop.h"
#include "KyroMediaOutput.h"
#include "KyroNDISenderManager.h"
#include "KyroSpoutSenderManager.h"
#include "KyroVirtualWebcamOutput.h"
#include "LevelDriver.h"
#include "Misc/OutputDevice.h"
#include "Misc/OutputDeviceRedirector.h"
#include "Modules/ModuleManager.h"
#include "Styling/SlateColor.h"
#include "WidgetDriver.h"
#include "Widgets/Docking/SDockTab.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SCheckBox.h"
#include "Widgets/Input/SComboBox.h"
#include "Widgets/Input/SEditableTextBox.h"
#include "Widgets/Text/STextBlock.h"

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

	TSharedRef<SButton> FindCreateButton(const TSharedRef<SWidget>& Wizard)
	{
		return FWidgetDriver::Find<SButton>(Wizard, TEXT("SButton"), FString(TEXT("Create"))).ToSharedRef();
	}

	void PickCapture(const TSharedRef<SWidget>& Wizard, const FString& Capture)
	{
		const TSharedRef<SComboBox<TSharedPtr<FString>>> Combo = FWidgetDriver::Find<SComboBox<TSharedPtr<FString>>>(Wizard, TEXT("SComboBox")).ToSharedRef();
		const TSharedPtr<FString>* Option = FWidgetDriver::GetComboOptions(Combo).FindByPredicate([&Capture](const TSharedPtr<FString>& Item)
			{ return Item->Equals(Capture); });
		checkf(Option, TEXT("The wizard offers no capture type \"%s\""), *Capture);
		FWidgetDriver::PickComboItem(Combo, *Option);
	}

	/** Ticks an output as a user told to tick it does: a box already ticked is left alone. */
	void TickOutput(const TSharedRef<SWidget>& Wizard, const FString& Caption)
	{
		const TSharedPtr<SCheckBox> CheckBox = FWidgetDriver::Find<SCheckBox>(Wizard, TEXT("SCheckBox"), Caption);
		checkf(CheckBox.IsValid(), TEXT("The wizard offers no output \"%s\""), *Caption);
		if (!CheckBox->IsChecked())
		{
			FWidgetDriver::ToggleCheckBox(CheckBox.ToSharedRef());
		}
	}

	void FillIn(const TSharedRef<SWidget>& Wizard, const FCreateRequest& Request)
	{
		if (Request.Capture.IsSet())
		{
			PickCapture(Wizard, Request.Capture.GetValue());
		}
		for (const FString& Output : Request.Outputs)
		{
			TickOutput(Wizard, Output);
		}
		FWidgetDriver::TypeText(FWidgetDriver::Find<SEditableTextBox>(Wizard, TEXT("SEditableTextBox")).ToSharedRef(), FText::FromString(Request.Name));
	}

	/** The wizard's complaints and errors are the lines it shows in red. */
	bool IsShownInRed(const STextBlock& Text)
	{
		const FSlateColor Color = FWidgetDriver::GetColor(Text);
		return Color.IsColorSpecified() && Color.GetSpecifiedColor() == FLinearColor::Red;
	}

	TArray<TSharedRef<STextBlock>> GetShownTexts(const TSharedRef<SWidget>& Wizard)
	{
		TArray<TSharedRef<STextBlock>> Shown;
		for (const TSharedRef<SWidget>& Widget : FWidgetDriver::FindAllWidgets(Wizard, TEXT("STextBlock")))
		{
			const TSharedRef<STextBlock> Text = StaticCastSharedRef<STextBlock>(Widget);
			if (FWidgetDriver::IsShown(Widget) && !Text->GetText().IsEmpty())
			{
				Shown.Add(Text);
			}
		}
		return Shown;
	}

	/** Reads the outcome as a user does: still on the steps with warnings, or a done page in white or red. */
	void ReadOutcome(const TSharedRef<SWidget>& Wizard, FCreateResult& Result)
	{
		const TArray<TSharedRef<STextBlock>> Shown = GetShownTexts(Wizard);
		if (FWidgetDriver::IsShown(FindCreateButton(Wizard)))
		{
			Result.Outcome = ECreateOutcome::Refused;
			for (const TSharedRef<STextBlock>& Text : Shown)
			{
				if (IsShownInRed(*Text) && !Text->GetText().IsEmpty())
				{
					Result.Warnings.Add(Text->GetText().ToString());
				}
			}
			return;
		}
		// The done page ends the tree: its result line, then its button's label.
		const STextBlock& ResultLine = *Shown[Shown.Num() - 2];
		Result.DoneText = ResultLine.GetText().ToString();
		Result.Outcome = IsShownInRed(ResultLine) ? ECreateOutcome::Failed : ECreateOutcome::Created;
	}

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

TSharedRef<SWidget> CastellanEditorDriver::OpenWizard()
{
	FModuleManager::GetModuleChecked<FCastellanEditorModule>(TEXT("CastellanEditor")).PluginButtonClicked();
	const TSharedPtr<SDockTab> Tab = FGlobalTabmanager::Get()->FindExistingLiveTab(FTabId(FCastellanEditorModule::LivestreamWizardTabName));
	check(Tab.IsValid());
	return Tab->GetContent();
}

FCreateResult CastellanEditorDriver::CreateLivestream(const FCreateRequest& Request)
{
	const TSharedRef<SWidget> Wizard = OpenWizard();
	FCreateResult Result;
	const int32 FirstMessageBox = UE::Headless::GetShownMessageDialogs().Num();
	{
		FLogRecorder Log;
		FillIn(Wizard, Request);
		FWidgetDriver::Click(FindCreateButton(Wizard));
		Result.EditorMessages = GetMessageBoxesSince(FirstMessageBox);
		Result.EditorMessages.Append(Log.Lines);
	}
	ReadOutcome(Wizard, Result);
	Result.WizardOutline = FWidgetDriver::DescribeTree(Wizard);
	Result.Level = TakeLevelSnapshot();
	return Result;
}
