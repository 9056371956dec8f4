// Copyright Nimbrel. All Rights Reserved.

#include "SLivestreamWizard.h"

#include "AssetRegistry/AssetRegistryModule.h"
#include "AssetRegistry/IAssetRegistry.h"
#include "AssetToolsModule.h"
#include "CastellanEditorStyle.h"
#include "Editor.h"
#include "Editor/UnrealEdEngine.h"
#include "Engine/Level.h"
#include "Engine/TextureRenderTarget2D.h"
#include "Engine/World.h"
#include "GameFramework/Actor.h"
#include "IAssetTools.h"
#include "Input/Events.h"
#include "InputCoreTypes.h"
#include "Kismet/GameplayStatics.h"
#include "Kyro360CamCapture.h"
#include "Kyro360CaptureComponent.h"
#include "KyroCaptureComponent.h"
#include "KyroCineCamCapture.h"
#include "KyroMediaOutput.h"
#include "KyroNDISenderManager.h"
#include "KyroSpoutSenderManager.h"
#include "KyroTelemetry.h"
#include "KyroViewportCapture.h"
#include "KyroVirtualWebcamOutput.h"
#include "LevelEditorViewport.h"
#include "Modules/ModuleManager.h"
#include "ScopedTransaction.h"
#include "Selection.h"
#include "Styling/CoreStyle.h"
#include "Styling/ISlateStyle.h"
#include "UObject/NameTypes.h"
#include "UnrealEdGlobals.h"
#include "Widgets/Images/SImage.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Input/SCheckBox.h"
#include "Widgets/Input/SComboBox.h"
#include "Widgets/Input/SEditableTextBox.h"
#include "Widgets/Layout/SBox.h"
#include "Widgets/Layout/SScrollBox.h"
#include "Widgets/SBoxPanel.h"
#include "Widgets/SOverlay.h"
#include "Widgets/Text/STextBlock.h"

#define LOCTEXT_NAMESPACE "LivestreamWizard"

namespace LivestreamWizard
{
	const FLinearColor LabelColour(0.5f, 0.5f, 0.5f, 1.0f);
	const FMargin SectionPadding(0.0f, 8.0f, 0.0f, 0.0f);
	const FMargin ItemPadding(0.0f, 2.0f);
	const TCHAR* const AssetFolder = TEXT("/Game/LivestreamWizard/");

	/** A step's heading: regular, 10 points, mid grey. */
	TSharedRef<STextBlock> MakeStepLabel(const FText& Text)
	{
		return SNew(STextBlock)
			.Text(Text)
			.Font(FCoreStyle::GetDefaultFontStyle("Regular", 10))
			.ColorAndOpacity(LabelColour);
	}

	/** A red warning line under a step, written by validation. */
	TSharedRef<STextBlock> MakeWarning(TSharedPtr<STextBlock>& OutWarning, const FText& Text)
	{
		return SAssignNew(OutWarning, STextBlock)
			.Text(Text)
			.Font(FCoreStyle::GetDefaultFontStyle("Italic", 8))
			.ColorAndOpacity(FLinearColor::Red);
	}

	/** An output's check box, unchecked, with its caption as plain (unlocalised) text. */
	TSharedRef<SCheckBox> MakeOutputCheckBox(TSharedPtr<SCheckBox>& OutCheckBox, const TCHAR* Caption)
	{
		// clang-format off
		return SAssignNew(OutCheckBox, SCheckBox)
			[
				SNew(STextBlock)
				.Text(FText::FromString(Caption))
			];
		// clang-format on
	}

	/**
	 * Whether the asset tools can make a unique package name from this one: the engine stops the
	 * editor on a name of NAME_SIZE characters or more, and numbering may add up to ten digits. A
	 * longer name fails like an asset the tools refuse.
	 */
	bool CanNameUniquely(const FString& BasePackageName)
	{
		constexpr int32 MaxNumberingDigits = 10;
		return BasePackageName.Len() + MaxNumberingDigits < NAME_SIZE;
	}

	/** The level viewport client whose viewport is the active one, or null. */
	FLevelEditorViewportClient* FindActiveLevelViewportClient()
	{
		for (FLevelEditorViewportClient* Client : GEditor->GetLevelViewportClients())
		{
			if (Client->Viewport == GEditor->GetActiveViewport())
			{
				return Client;
			}
		}
		return nullptr;
	}

	/** Outputs go to the world of the first level viewport client (the camera goes to the active one). */
	UWorld* GetOutputWorld()
	{
		return GEditor->GetLevelViewportClients()[0]->GetWorld();
	}

	/** A new actor at the origin, noted in OutSpawnedActors; null if the world refuses it. */
	template <typename ActorType>
	ActorType* SpawnActor(UWorld* World, TArray<AActor*>& OutSpawnedActors)
	{
		ActorType* Actor = Cast<ActorType>(World->SpawnActor(ActorType::StaticClass(), nullptr, nullptr, FActorSpawnParameters()));
		if (Actor)
		{
			OutSpawnedActors.Add(Actor);
		}
		return Actor;
	}

	/** The first sender manager of the level after Modify, or a new one when the level has none. */
	template <typename ManagerType>
	ManagerType* FindOrSpawnSenderManager(TArray<AActor*>& OutSpawnedActors)
	{
		UWorld* World = GetOutputWorld();
		TArray<AActor*> Found;
		UGameplayStatics::GetAllActorsOfClass(World, ManagerType::StaticClass(), Found);
		if (Found.Num() > 0)
		{
			Found[0]->Modify(true);
			return Cast<ManagerType>(Found[0]);
		}
		ManagerType* Manager = SpawnActor<ManagerType>(World, OutSpawnedActors);
		if (Manager)
		{
			ULevel::LevelDirtiedEvent.Broadcast();
			GEditor->RedrawAllViewports(true);
		}
		return Manager;
	}

	/** A new render target asset in the wizard's folder, named uniquely after BasePackageName; null if the asset tools refuse. */
	UTextureRenderTarget2D* CreateRenderTarget(const FString& BasePackageName, FString& OutAssetName)
	{
		IAssetTools& AssetTools = FModuleManager::LoadModuleChecked<FAssetToolsModule>(TEXT("AssetTools")).Get();
		FString PackageName;
		AssetTools.CreateUniqueAssetName(BasePackageName, FString(), PackageName, OutAssetName);
		UTextureRenderTarget2D* RenderTarget = Cast<UTextureRenderTarget2D>(AssetTools.CreateAsset(OutAssetName, AssetFolder, UTextureRenderTarget2D::StaticClass(), nullptr));
		if (RenderTarget)
		{
			RenderTarget->MarkPackageDirty();
			FModuleManager::LoadModuleChecked<FAssetRegistryModule>(TEXT("AssetRegistry")).Get().AssetCreated(RenderTarget);
		}
		return RenderTarget;
	}

	/** Moves the actor to the viewport's camera and makes it the editor's only selection. */
	void PlaceAndSelect(AActor* Actor, const FLevelEditorViewportClient& Client)
	{
		Actor->SetActorLocation(Client.GetViewLocation());
		Actor->SetActorRotation(Client.GetViewRotation());

		GUnrealEd->SelectNone(true, true, true);
		GEditor->GetSelectedActors()->DeselectAll();
		GEditor->GetSelectedObjects()->DeselectAll();
		GEditor->SelectActor(Actor, true, false, false, false);
		TArray<AActor*> SelectedActors;
		SelectedActors.Add(Actor);
		GUnrealEd->UpdateFloatingPropertyWindowsFromActorList(SelectedActors, false);
		GEditor->RedrawAllViewports(true);
	}

	/** A sender entry of the runtime's Spout or NDI manager, enabled, named after the render target. */
	template <typename EntryType>
	EntryType MakeSenderEntry(UTextureRenderTarget2D* RenderTarget, const FString& Name)
	{
		EntryType Entry;
		Entry.bEnabled = true;
		Entry.SenderName = Name;
		Entry.StandaloneSenderName = Name + TEXT("_Standalone");
		Entry.RenderTarget = RenderTarget;
		return Entry;
	}

	template <typename ManagerType, typename EntryType>
	void AddSenderEntry(ManagerType* Manager, const EntryType& Entry)
	{
		Manager->Senders.Add(Entry);
		Manager->GetWorld()->MarkPackageDirty();
		ULevel::LevelDirtiedEvent.Broadcast();
	}

	/** Shows the render target on a media output or virtual webcam actor. */
	template <typename OutputType>
	void ConnectOutputActor(OutputType* Output, UTextureRenderTarget2D* RenderTarget)
	{
		Output->RenderTarget = RenderTarget;
		GEditor->RedrawAllViewports(true);
		Output->GetWorld()->MarkPackageDirty();
		ULevel::LevelDirtiedEvent.Broadcast();
	}
}

const SLivestreamWizard::FOutputOption SLivestreamWizard::OutputOptions[] = {
	{&SLivestreamWizard::SpoutCheckBox, TEXT("Spout")},
	{&SLivestreamWizard::NDICheckBox, TEXT("NDI")},
	{&SLivestreamWizard::MediaOutputCheckBox, TEXT("Media Output (RTMP, SRT, MP4 etc.)")},
	{&SLivestreamWizard::VirtualWebcamCheckBox, TEXT("Virtual Webcam")},
};

SLivestreamWizard::SLivestreamWizard()
	: bIsCreatorPage(true)
	, CineCamOption(TEXT("Kyro Cinecam"))
	, ThreeSixtyCamOption(TEXT("Kyro 360 Camera"))
	, ViewportCaptureOption(TEXT("Kyro Viewport Capture"))
{
}

void SLivestreamWizard::Construct(const FArguments& InArgs)
{
	KyroTelemetry::WizardEditorOpened();

	CameraTypeOptions.Add(MakeShared<FString>(CineCamOption));
	CameraTypeOptions.Add(MakeShared<FString>(ThreeSixtyCamOption));
	CameraTypeOptions.Add(MakeShared<FString>(ViewportCaptureOption));

	// clang-format off
	ChildSlot
	[
		SNew(SScrollBox)
		+ SScrollBox::Slot()
		[
			SNew(SBox)
			.Padding(FMargin(16.0f))
			[
				SNew(SVerticalBox)
				+ SVerticalBox::Slot()
				.AutoHeight()
				[
					MakeHeader()
				]
				+ SVerticalBox::Slot()
				.AutoHeight()
				[
					// The two pages lie on top of each other; one is shown at a time.
					SNew(SOverlay)
					+ SOverlay::Slot()
					[
						MakeCreatorPage()
					]
					+ SOverlay::Slot()
					[
						MakeDonePage()
					]
				]
			]
		]
	];
	// clang-format on
}

TSharedRef<SWidget> SLivestreamWizard::MakeHeader() const
{
	using namespace LivestreamWizard;

	// clang-format off
	return SNew(SVerticalBox)
		+ SVerticalBox::Slot()
		.AutoHeight()
		.HAlign(HAlign_Left)
		[
			SNew(SImage)
			.Image(FCastellanEditorStyle::Get().GetBrush(TEXT("KyroCastellan.WizardIcon_128x")))
		]
		+ SVerticalBox::Slot()
		.AutoHeight()
		.Padding(SectionPadding)
		[
			SNew(STextBlock)
			.Text(LOCTEXT("Title", "Livestream Wizard"))
			.Font(FCoreStyle::GetDefaultFontStyle("Regular", 19))
		]
		+ SVerticalBox::Slot()
		.AutoHeight()
		[
			SNew(STextBlock)
			.Text(LOCTEXT("Description", "Set up a live-stream from an Kyro Cinecam, Kyro 360 Camera or Kyro Viewport Capture"))
			.Font(FCoreStyle::GetDefaultFontStyle("Regular", 10))
		];
	// clang-format on
}

TSharedRef<SWidget> SLivestreamWizard::MakeCreatorPage()
{
	using namespace LivestreamWizard;

	// clang-format off
	return SNew(SVerticalBox)
		.Visibility(this, &SLivestreamWizard::GetCreatorPageVisibility)
		+ SVerticalBox::Slot()
		.AutoHeight()
		.Padding(SectionPadding)
		[
			MakeCaptureTypeStep()
		]
		+ SVerticalBox::Slot()
		.AutoHeight()
		.Padding(SectionPadding)
		[
			MakeOutputStep()
		]
		+ SVerticalBox::Slot()
		.AutoHeight()
		.Padding(SectionPadding)
		[
			MakeNameStep()
		]
		+ SVerticalBox::Slot()
		.AutoHeight()
		.Padding(SectionPadding)
		.HAlign(HAlign_Left)
		[
			SNew(SButton)
			.Text(LOCTEXT("Button_Label", "Create"))
			.IsEnabled(this, &SLivestreamWizard::GetCreateButtonEnabled)
			.OnClicked(this, &SLivestreamWizard::OnCreateButtonClicked)
		];
	// clang-format on
}

TSharedRef<SWidget> SLivestreamWizard::MakeCaptureTypeStep()
{
	using namespace LivestreamWizard;

	// clang-format off
	return SNew(SVerticalBox)
		+ SVerticalBox::Slot()
		.AutoHeight()
		[
			MakeStepLabel(LOCTEXT("CameraType_Label", "1. Select Capture Type:"))
		]
		+ SVerticalBox::Slot()
		.AutoHeight()
		.Padding(ItemPadding)
		[
			SAssignNew(CameraTypeComboBox, SComboBox<TSharedPtr<FString>>)
			.OptionsSource(&CameraTypeOptions)
			.InitiallySelectedItem(CameraTypeOptions[0])
			.OnGenerateWidget(this, &SLivestreamWizard::MakeCameraTypeWidget)
			[
				SNew(STextBlock)
				.Text(this, &SLivestreamWizard::GetCameraTypeComboBoxSelectedText)
			]
		]
		+ SVerticalBox::Slot()
		.AutoHeight()
		[
			// Step 1 has no warning of its own; the line keeps the steps evenly spaced.
			SNew(STextBlock)
			.Font(FCoreStyle::GetDefaultFontStyle("Italic", 8))
		];
	// clang-format on
}

TSharedRef<SWidget> SLivestreamWizard::MakeOutputStep()
{
	using namespace LivestreamWizard;

	// clang-format off
	const TSharedRef<SVerticalBox> Step = SNew(SVerticalBox);
	Step->AddSlot()
	.AutoHeight()
	[
		MakeStepLabel(LOCTEXT("OutputType_Label", "2. Select Output Type:"))
	];
	for (const FOutputOption& Output : OutputOptions)
	{
		Step->AddSlot()
		.AutoHeight()
		.Padding(ItemPadding)
		[
			MakeOutputCheckBox(this->*Output.CheckBox, Output.Caption)
		];
	}
	Step->AddSlot()
	.AutoHeight()
	[
		MakeWarning(OutputTypeWarning, LOCTEXT("OutputType_Warning", ""))
	];
	// clang-format on
	return Step;
}

TSharedRef<SWidget> SLivestreamWizard::MakeNameStep()
{
	using namespace LivestreamWizard;

	// clang-format off
	return SNew(SVerticalBox)
		+ SVerticalBox::Slot()
		.AutoHeight()
		[
			MakeStepLabel(LOCTEXT("StreamName_Label", "3. Set Livestream Name:"))
		]
		+ SVerticalBox::Slot()
		.AutoHeight()
		.Padding(ItemPadding)
		[
			SAssignNew(StreamNameTextBox, SEditableTextBox)
		]
		+ SVerticalBox::Slot()
		.AutoHeight()
		[
			MakeWarning(StreamNameWarning, LOCTEXT("StreamName_Warning", ""))
		];
	// clang-format on
}

TSharedRef<SWidget> SLivestreamWizard::MakeDonePage()
{
	using namespace LivestreamWizard;

	// clang-format off
	return SNew(SVerticalBox)
		.Visibility(this, &SLivestreamWizard::GetDonePageVisibility)
		+ SVerticalBox::Slot()
		.AutoHeight()
		.Padding(SectionPadding)
		[
			SAssignNew(DoneText, STextBlock)
			.Font(FCoreStyle::GetDefaultFontStyle("Regular", 12))
		]
		+ SVerticalBox::Slot()
		.AutoHeight()
		.Padding(SectionPadding)
		.HAlign(HAlign_Left)
		[
			SNew(SButton)
			.OnClicked(this, &SLivestreamWizard::OnRestartButtonClicked)
			[
				SAssignNew(DoneButtonText, STextBlock)
			]
		];
	// clang-format on
}

FText SLivestreamWizard::GetCameraTypeComboBoxSelectedText() const
{
	check(CameraTypeComboBox.IsValid());
	const TSharedPtr<FString> SelectedItem = CameraTypeComboBox->GetSelectedItem();
	check(SelectedItem.IsValid());
	return FText::FromString(*SelectedItem);
}

TSharedRef<SWidget> SLivestreamWizard::MakeCameraTypeWidget(TSharedPtr<FString> Item) const
{
	check(Item.IsValid());
	return SNew(STextBlock).Text(FText::FromString(*Item));
}

EVisibility SLivestreamWizard::GetCreatorPageVisibility() const
{
	return bIsCreatorPage ? EVisibility::Visible : EVisibility::Collapsed;
}

EVisibility SLivestreamWizard::GetDonePageVisibility() const
{
	return bIsCreatorPage ? EVisibility::Collapsed : EVisibility::Visible;
}

bool SLivestreamWizard::GetCreateButtonEnabled() const
{
	return !GEditor->IsPlayingSessionInEditor();
}

bool SLivestreamWizard::CanCreateSetup() const
{
	bool bOutputsValid = false;
	for (const FOutputOption& Output : OutputOptions)
	{
		bOutputsValid |= (this->*Output.CheckBox)->IsChecked();
	}
	bool bNameValid = true;

	if (!bOutputsValid)
	{
		OutputTypeWarning->SetText(LOCTEXT("OutputSelection_Warning", "! Select at least one output type."));
	}
	else
	{
		OutputTypeWarning->SetText(LOCTEXT("OutputSelection_Warning", ""));
	}

	const FText StreamName = StreamNameTextBox->GetText();
	if (StreamName.IsEmptyOrWhitespace())
	{
		StreamNameWarning->SetText(LOCTEXT("StreamName_Warning", "! LivestreamWizard Name cannot be empty."));
		bNameValid = false;
	}
	else
	{
		UWorld* World = LivestreamWizard::GetOutputWorld();
		const FString Name = StreamName.ToString();
		// The search runs twice, both times over the Spout managers: names held only by NDI senders never block a name.
		for (int32 Search = 0; Search < 2; ++Search)
		{
			TArray<AActor*> Found;
			UGameplayStatics::GetAllActorsOfClass(World, AKyroSpoutSenderManager::StaticClass(), Found);
			for (AActor* Actor : Found)
			{
				const AKyroSpoutSenderManager* Manager = Cast<AKyroSpoutSenderManager>(Actor);
				for (const FKyroSpoutSenderInterface& Sender : Manager->Senders)
				{
					if (Sender.SenderName == Name || Sender.StandaloneSenderName == Name)
					{
						StreamNameWarning->SetText(LOCTEXT("StreamName_Warning", "! Livestream name already defined, please use a differnt name."));
						bNameValid = false;
					}
				}
			}
		}
	}

	if (bNameValid)
	{
		StreamNameWarning->SetText(LOCTEXT("StreamName_Warning", ""));
	}
	return bOutputsValid && bNameValid;
}

bool SLivestreamWizard::CreateSetup() const
{
	FScopedTransaction Transaction(FText::FromString(TEXT("Create Setup")));
	TArray<AActor*> SpawnedActors;
	if (BuildSetup(SpawnedActors))
	{
		return true;
	}
	// A failed create leaves nothing behind: its actors go, and no undo step remains.
	for (AActor* Actor : SpawnedActors)
	{
		Actor->Destroy();
	}
	Transaction.Cancel();
	return false;
}

bool SLivestreamWizard::BuildSetup(TArray<AActor*>& OutSpawnedActors) const
{
	using namespace LivestreamWizard;

	FLevelEditorViewportClient* Client = FindActiveLevelViewportClient();
	const FString BasePackageName = FString(AssetFolder) + StreamNameTextBox->GetText().ToString();
	if (!Client || !CanNameUniquely(BasePackageName))
	{
		return false;
	}

	// Every spawn, which the world may refuse, comes before the render target asset, which no undo removes.
	AActor* CaptureActor = SpawnCaptureActor(Client->GetWorld(), OutSpawnedActors);
	FOutputActors Outputs;
	if (!CaptureActor || !SpawnOutputActors(Outputs, OutSpawnedActors))
	{
		return false;
	}
	FString AssetName;
	UTextureRenderTarget2D* RenderTarget = CreateRenderTarget(BasePackageName, AssetName);
	if (!RenderTarget)
	{
		return false;
	}

	SetCaptureRenderTarget(CaptureActor, RenderTarget);
	PlaceAndSelect(CaptureActor, *Client);
	// The senders take the asset's final name, which the asset tools may have made unique.
	ConnectOutputs(Outputs, RenderTarget, AssetName);
	return true;
}

AActor* SLivestreamWizard::SpawnCaptureActor(UWorld* World, TArray<AActor*>& OutSpawnedActors) const
{
	using namespace LivestreamWizard;

	if (IsCaptureTypeSelected(CineCamOption))
	{
		return SpawnActor<AKyroCineCamCapture>(World, OutSpawnedActors);
	}
	if (IsCaptureTypeSelected(ThreeSixtyCamOption))
	{
		return SpawnActor<AKyro360CamCapture>(World, OutSpawnedActors);
	}
	return SpawnActor<AKyroViewportCapture>(World, OutSpawnedActors);
}

void SLivestreamWizard::SetCaptureRenderTarget(AActor* CaptureActor, UTextureRenderTarget2D* RenderTarget) const
{
	// The actor was spawned for this selection, so the cast holds.
	if (IsCaptureTypeSelected(CineCamOption))
	{
		CastChecked<AKyroCineCamCapture>(CaptureActor)->CaptureComponent->TextureTarget = RenderTarget;
	}
	else if (IsCaptureTypeSelected(ThreeSixtyCamOption))
	{
		CastChecked<AKyro360CamCapture>(CaptureActor)->CaptureComponent->TextureTarget = RenderTarget;
	}
	else
	{
		CastChecked<AKyroViewportCapture>(CaptureActor)->RenderTarget = RenderTarget;
	}
}

bool SLivestreamWizard::SpawnOutputActors(FOutputActors& OutOutputs, TArray<AActor*>& OutSpawnedActors) const
{
	using namespace LivestreamWizard;

	if (SpoutCheckBox->IsChecked())
	{
		OutOutputs.SpoutSenderManager = FindOrSpawnSenderManager<AKyroSpoutSenderManager>(OutSpawnedActors);
		if (!OutOutputs.SpoutSenderManager)
		{
			return false;
		}
	}
	if (NDICheckBox->IsChecked())
	{
		OutOutputs.NDISenderManager = FindOrSpawnSenderManager<AKyroNDISenderManager>(OutSpawnedActors);
		if (!OutOutputs.NDISenderManager)
		{
			return false;
		}
	}
	if (MediaOutputCheckBox->IsChecked())
	{
		OutOutputs.MediaOutput = SpawnActor<AKyroMediaOutput>(GetOutputWorld(), OutSpawnedActors);
		if (!OutOutputs.MediaOutput)
		{
			return false;
		}
	}
	if (VirtualWebcamCheckBox->IsChecked())
	{
		OutOutputs.VirtualWebcamOutput = SpawnActor<AKyroVirtualWebcamOutput>(GetOutputWorld(), OutSpawnedActors);
		if (!OutOutputs.VirtualWebcamOutput)
		{
			return false;
		}
	}
	return true;
}

void SLivestreamWizard::ConnectOutputs(const FOutputActors& Outputs, UTextureRenderTarget2D* RenderTarget, const FString& AssetName)
{
	using namespace LivestreamWizard;

	if (Outputs.SpoutSenderManager)
	{
		AddSenderEntry(Outputs.SpoutSenderManager, MakeSenderEntry<FKyroSpoutSenderInterface>(RenderTarget, AssetName));
	}
	if (Outputs.NDISenderManager)
	{
		FKyroNDISenderInterface Entry = MakeSenderEntry<FKyroNDISenderInterface>(RenderTarget, AssetName);
		// The NDI entry's second flag, next to the enabled one.
		Entry.bActive = true;
		AddSenderEntry(Outputs.NDISenderManager, Entry);
	}
	if (Outputs.MediaOutput)
	{
		ConnectOutputActor(Outputs.MediaOutput, RenderTarget);
	}
	if (Outputs.VirtualWebcamOutput)
	{
		ConnectOutputActor(Outputs.VirtualWebcamOutput, RenderTarget);
	}
}

bool SLivestreamWizard::IsCaptureTypeSelected(const FString& Option) const
{
	const TSharedPtr<FString> SelectedItem = CameraTypeComboBox->GetSelectedItem();
	check(SelectedItem.IsValid());
	return *SelectedItem == Option;
}

FReply SLivestreamWizard::OnCreateButtonClicked()
{
	if (!CanCreateSetup())
	{
		return FReply::Handled();
	}
	if (CreateSetup())
	{
		DoneText->SetText(FText::Format(LOCTEXT("DoneText", "Livestream '{0}' created!"), StreamNameTextBox->GetText()));
		DoneText->SetColorAndOpacity(FLinearColor::White);
		DoneButtonText->SetText(LOCTEXT("DoneButtonText", "Create Another Livestream"));
	}
	else
	{
		DoneText->SetText(FText::Format(LOCTEXT("DoneText", "ERROR: Failed to create Livestream '{0}'!"), StreamNameTextBox->GetText()));
		DoneText->SetColorAndOpacity(FLinearColor::Red);
		DoneButtonText->SetText(LOCTEXT("DoneButtonText", "Try Again"));
	}
	bIsCreatorPage = false;
	return FReply::Handled();
}

FReply SLivestreamWizard::OnRestartButtonClicked()
{
	CameraTypeComboBox->SetSelectedItem(CameraTypeOptions[0]);
	for (const FOutputOption& Output : OutputOptions)
	{
		(this->*Output.CheckBox)->SetIsChecked(ECheckBoxState::Unchecked);
	}
	StreamNameTextBox->SetText(FText::GetEmpty());
	bIsCreatorPage = true;
	return FReply::Handled();
}

FReply SLivestreamWizard::OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent)
{
	if (InKeyEvent.GetKey() == EKeys::Enter)
	{
		OnCreateButtonClicked();
		return FReply::Handled();
	}
	return FReply::Unhandled();
}

#undef LOCTEXT_NAMESPACE
