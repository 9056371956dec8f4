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

	/** Outputs go to the world of the first level viewport client (the camera goes to the active one). */
	UWorld* GetOutputWorld()
	{
		return GEditor->GetLevelViewportClients()[0]->GetWorld();
	}

	/** The first sender manager of the level after Modify, or a new one when the level has none. */
	template <typename ManagerType>
	ManagerType* FindOrCreateSenderManager()
	{
		UWorld* World = GetOutputWorld();
		TArray<AActor*> Found;
		UGameplayStatics::GetAllActorsOfClass(World, ManagerType::StaticClass(), Found);
		if (Found.Num() == 0)
		{
			ManagerType* Manager = Cast<ManagerType>(World->SpawnActor(ManagerType::StaticClass(), nullptr, nullptr, FActorSpawnParameters()));
			ULevel::LevelDirtiedEvent.Broadcast();
			GEditor->RedrawAllViewports(true);
			return Manager;
		}
		Found[0]->Modify(true);
		return Cast<ManagerType>(Found[0]);
	}

	/** A sender entry of the runtime's Spout or NDI manager, enabled, named after the render target. */
	template <typename EntryType>
	EntryType MakeSenderEntry(UTextureRenderTarget2D* RenderTarget, const FString& Name)
	{
		// Runtime members: FKyroSpoutSenderInterface / FKyroNDISenderInterface::bEnabled, SenderName, StandaloneSenderName, RenderTarget.
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
		// Runtime member: AKyroSpoutSenderManager / AKyroNDISenderManager::Senders.
		Manager->Senders.Add(Entry);
		Manager->GetWorld()->MarkPackageDirty();
		ULevel::LevelDirtiedEvent.Broadcast();
	}

	/** Spawns a media output or virtual webcam actor at the origin, rendering RenderTarget. */
	template <typename OutputType>
	void CreateOutputActor(UTextureRenderTarget2D* RenderTarget)
	{
		OutputType* Output = Cast<OutputType>(GetOutputWorld()->SpawnActor(OutputType::StaticClass(), nullptr, nullptr, FActorSpawnParameters()));
		// Runtime member: AKyroMediaOutput / AKyroVirtualWebcamOutput::RenderTarget.
		Output->RenderTarget = RenderTarget;
		GEditor->RedrawAllViewports(true);
		Output->GetWorld()->MarkPackageDirty();
		ULevel::LevelDirtiedEvent.Broadcast();
	}
}

SLivestreamWizard::SLivestreamWizard()
	: bIsCreatorPage(true)
	, CineCamOption(TEXT("Kyro Cinecam"))
	, ThreeSixtyCamOption(TEXT("Kyro 360 Camera"))
	, ViewportCaptureOption(TEXT("Kyro Viewport Capture"))
{
}

void SLivestreamWizard::Construct(const FArguments& InArgs)
{
	using namespace LivestreamWizard;

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
					SNew(SVerticalBox)
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
					]
				]
				+ SVerticalBox::Slot()
				.AutoHeight()
				[
					SNew(SOverlay)
					+ SOverlay::Slot()
					[
						SNew(SVerticalBox)
						.Visibility(this, &SLivestreamWizard::GetCreatorPageVisibility)
						+ SVerticalBox::Slot()
						.AutoHeight()
						.Padding(SectionPadding)
						[
							SNew(SVerticalBox)
							+ SVerticalBox::Slot()
							.AutoHeight()
							[
								LivestreamWizard::MakeStepLabel(LOCTEXT("CameraType_Label", "1. Select Capture Type:"))
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
							]
						]
						+ SVerticalBox::Slot()
						.AutoHeight()
						.Padding(SectionPadding)
						[
							SNew(SVerticalBox)
							+ SVerticalBox::Slot()
							.AutoHeight()
							[
								LivestreamWizard::MakeStepLabel(LOCTEXT("OutputType_Label", "2. Select Output Type:"))
							]
							+ SVerticalBox::Slot()
							.AutoHeight()
							.Padding(ItemPadding)
							[
								LivestreamWizard::MakeOutputCheckBox(SpoutCheckBox, TEXT("Spout"))
							]
							+ SVerticalBox::Slot()
							.AutoHeight()
							.Padding(ItemPadding)
							[
								LivestreamWizard::MakeOutputCheckBox(NDICheckBox, TEXT("NDI"))
							]
							+ SVerticalBox::Slot()
							.AutoHeight()
							.Padding(ItemPadding)
							[
								LivestreamWizard::MakeOutputCheckBox(MediaOutputCheckBox, TEXT("Media Output (RTMP, SRT, MP4 etc.)"))
							]
							+ SVerticalBox::Slot()
							.AutoHeight()
							.Padding(ItemPadding)
							[
								LivestreamWizard::MakeOutputCheckBox(VirtualWebcamCheckBox, TEXT("Virtual Webcam"))
							]
							+ SVerticalBox::Slot()
							.AutoHeight()
							[
								LivestreamWizard::MakeWarning(OutputTypeWarning, LOCTEXT("OutputType_Warning", ""))
							]
						]
						+ SVerticalBox::Slot()
						.AutoHeight()
						.Padding(SectionPadding)
						[
							SNew(SVerticalBox)
							+ SVerticalBox::Slot()
							.AutoHeight()
							[
								LivestreamWizard::MakeStepLabel(LOCTEXT("StreamName_Label", "3. Set Livestream Name:"))
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
								LivestreamWizard::MakeWarning(StreamNameWarning, LOCTEXT("StreamName_Warning", ""))
							]
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
						]
					]
					+ SOverlay::Slot()
					[
						SNew(SVerticalBox)
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
						]
					]
				]
			]
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
	bool bOutputsValid = true;
	bool bNameValid = true;

	if (!SpoutCheckBox->IsChecked() && !NDICheckBox->IsChecked() && !MediaOutputCheckBox->IsChecked() && !VirtualWebcamCheckBox->IsChecked())
	{
		OutputTypeWarning->SetText(LOCTEXT("OutputSelection_Warning", "! Select at least one output type."));
		bOutputsValid = false;
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
				// Runtime members: AKyroSpoutSenderManager::Senders, FKyroSpoutSenderInterface::SenderName and StandaloneSenderName.
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
	const FScopedTransaction Transaction(FText::FromString(TEXT("Create Setup")));

	FString AssetName;
	AActor* Actor = CreateCaptureActor(AssetName);
	if (!Actor)
	{
		return false;
	}
	UTextureRenderTarget2D* RenderTarget = GetRenderTarget(Actor);

	if (SpoutCheckBox->IsChecked())
	{
		CreateSpoutSender(RenderTarget, AssetName);
	}
	if (NDICheckBox->IsChecked())
	{
		CreateNDISender(RenderTarget, AssetName);
	}
	if (MediaOutputCheckBox->IsChecked())
	{
		CreateMediaOutput(RenderTarget);
	}
	if (VirtualWebcamCheckBox->IsChecked())
	{
		CreateVirtualCam(RenderTarget);
	}
	return true;
}

AActor* SLivestreamWizard::CreateCaptureActor(FString& OutAssetName) const
{
	FLevelEditorViewportClient* Client = nullptr;
	for (FLevelEditorViewportClient* Candidate : GEditor->GetLevelViewportClients())
	{
		if (Candidate->Viewport == GEditor->GetActiveViewport())
		{
			Client = Candidate;
			break;
		}
	}
	if (!Client)
	{
		return nullptr;
	}

	const FString BasePackageName = FString(LivestreamWizard::AssetFolder) + StreamNameTextBox->GetText().ToString();
	if (!LivestreamWizard::CanNameUniquely(BasePackageName))
	{
		return nullptr;
	}

	IAssetTools& AssetTools = FModuleManager::LoadModuleChecked<FAssetToolsModule>(TEXT("AssetTools")).Get();
	FString PackageName;
	AssetTools.CreateUniqueAssetName(BasePackageName, FString(), PackageName, OutAssetName);
	UTextureRenderTarget2D* RenderTarget = Cast<UTextureRenderTarget2D>(AssetTools.CreateAsset(OutAssetName, LivestreamWizard::AssetFolder, UTextureRenderTarget2D::StaticClass(), nullptr));
	if (!RenderTarget)
	{
		return nullptr;
	}
	RenderTarget->MarkPackageDirty();
	FModuleManager::LoadModuleChecked<FAssetRegistryModule>(TEXT("AssetRegistry")).Get().AssetCreated(RenderTarget);

	UWorld* World = Client->GetWorld();
	AActor* Actor = nullptr;
	if (IsCaptureTypeSelected(CineCamOption))
	{
		AKyroCineCamCapture* CineCam = Cast<AKyroCineCamCapture>(World->SpawnActor(AKyroCineCamCapture::StaticClass(), nullptr, nullptr, FActorSpawnParameters()));
		// Runtime member: AKyroCineCamCapture::CaptureComponent (a scene capture 2D).
		CineCam->CaptureComponent->TextureTarget = RenderTarget;
		Actor = CineCam;
	}
	else if (IsCaptureTypeSelected(ThreeSixtyCamOption))
	{
		AKyro360CamCapture* ThreeSixtyCam = Cast<AKyro360CamCapture>(World->SpawnActor(AKyro360CamCapture::StaticClass(), nullptr, nullptr, FActorSpawnParameters()));
		// Runtime member: AKyro360CamCapture::CaptureComponent (a UKyro360CaptureComponent).
		ThreeSixtyCam->CaptureComponent->TextureTarget = RenderTarget;
		Actor = ThreeSixtyCam;
	}
	else
	{
		AKyroViewportCapture* ViewportCapture = Cast<AKyroViewportCapture>(World->SpawnActor(AKyroViewportCapture::StaticClass(), nullptr, nullptr, FActorSpawnParameters()));
		// Runtime member: AKyroViewportCapture::RenderTarget.
		ViewportCapture->RenderTarget = RenderTarget;
		Actor = ViewportCapture;
	}

	Actor->SetActorLocation(Client->GetViewLocation());
	Actor->SetActorRotation(Client->GetViewRotation());

	GUnrealEd->SelectNone(true, true, true);
	GEditor->GetSelectedActors()->DeselectAll();
	GEditor->GetSelectedObjects()->DeselectAll();
	GEditor->SelectActor(Actor, true, false, false, false);
	TArray<AActor*> SelectedActors;
	SelectedActors.Add(Actor);
	GUnrealEd->UpdateFloatingPropertyWindowsFromActorList(SelectedActors, false);
	GEditor->RedrawAllViewports(true);
	return Actor;
}

UTextureRenderTarget2D* SLivestreamWizard::GetRenderTarget(AActor* CaptureActor) const
{
	// Called with the actor CreateCaptureActor has just made for this selection, so the casts hold.
	// Runtime members as in CreateCaptureActor.
	if (IsCaptureTypeSelected(CineCamOption))
	{
		return Cast<AKyroCineCamCapture>(CaptureActor)->CaptureComponent->TextureTarget.Get();
	}
	if (IsCaptureTypeSelected(ThreeSixtyCamOption))
	{
		return Cast<AKyro360CamCapture>(CaptureActor)->CaptureComponent->TextureTarget.Get();
	}
	return Cast<AKyroViewportCapture>(CaptureActor)->RenderTarget.Get();
}

void SLivestreamWizard::CreateSpoutSender(UTextureRenderTarget2D* RenderTarget, FString Name) const
{
	AKyroSpoutSenderManager* Manager = FindOrCreateSpoutSenderManager();
	LivestreamWizard::AddSenderEntry(Manager, LivestreamWizard::MakeSenderEntry<FKyroSpoutSenderInterface>(RenderTarget, Name));
}

void SLivestreamWizard::CreateNDISender(UTextureRenderTarget2D* RenderTarget, FString Name) const
{
	AKyroNDISenderManager* Manager = FindOrCreateNDISenderManager();
	FKyroNDISenderInterface Entry = LivestreamWizard::MakeSenderEntry<FKyroNDISenderInterface>(RenderTarget, Name);
	// Runtime member: FKyroNDISenderInterface::bActive, the flag next to bEnabled.
	Entry.bActive = true;
	LivestreamWizard::AddSenderEntry(Manager, Entry);
}

void SLivestreamWizard::CreateMediaOutput(UTextureRenderTarget2D* RenderTarget) const
{
	LivestreamWizard::CreateOutputActor<AKyroMediaOutput>(RenderTarget);
}

void SLivestreamWizard::CreateVirtualCam(UTextureRenderTarget2D* RenderTarget) const
{
	LivestreamWizard::CreateOutputActor<AKyroVirtualWebcamOutput>(RenderTarget);
}

AKyroSpoutSenderManager* SLivestreamWizard::FindOrCreateSpoutSenderManager() const
{
	return LivestreamWizard::FindOrCreateSenderManager<AKyroSpoutSenderManager>();
}

AKyroNDISenderManager* SLivestreamWizard::FindOrCreateNDISenderManager() const
{
	return LivestreamWizard::FindOrCreateSenderManager<AKyroNDISenderManager>();
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
	SpoutCheckBox->SetIsChecked(ECheckBoxState::Unchecked);
	NDICheckBox->SetIsChecked(ECheckBoxState::Unchecked);
	MediaOutputCheckBox->SetIsChecked(ECheckBoxState::Unchecked);
	VirtualWebcamCheckBox->SetIsChecked(ECheckBoxState::Unchecked);
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
