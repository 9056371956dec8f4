// Copyright Nimbrel. All Rights Reserved.

#include "SLivestreamWizard.h"

#include "AssetRegistry/AssetData.h"
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
#include "ObjectTools.h"
#include "ScopedTransaction.h"
#include "Selection.h"
#include "Styling/CoreStyle.h"
#include "Styling/ISlateStyle.h"
#include "UObject/NameTypes.h"
#include "UObject/ObjectPtr.h"
#include "UObject/WeakObjectPtrTemplates.h"
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
	/** The same folder as the asset registry names package paths. */
	const TCHAR* const AssetPackagePath = TEXT("/Game/LivestreamWizard");

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

	/** A new actor at the origin with default spawn parameters; null if the world refuses it. */
	template <typename ActorType>
	ActorType* SpawnAtOrigin(UWorld* World)
	{
		return Cast<ActorType>(World->SpawnActor(ActorType::StaticClass(), nullptr, nullptr, FActorSpawnParameters()));
	}

	/** The first sender manager of the level after Modify, or a new one when the level has none; null if that spawn is refused. */
	template <typename ManagerType>
	ManagerType* FindOrCreateSenderManager()
	{
		UWorld* World = GetOutputWorld();
		TArray<AActor*> Found;
		UGameplayStatics::GetAllActorsOfClass(World, ManagerType::StaticClass(), Found);
		if (Found.Num() == 0)
		{
			ManagerType* Manager = SpawnAtOrigin<ManagerType>(World);
			if (Manager)
			{
				ULevel::LevelDirtiedEvent.Broadcast();
				GEditor->RedrawAllViewports(true);
			}
			return Manager;
		}
		Found[0]->Modify(true);
		return Cast<ManagerType>(Found[0]);
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

	/** Where each capture actor keeps the render target it renders into. */
	TObjectPtr<UTextureRenderTarget2D>& RenderTargetOf(AKyroCineCamCapture& Capture)
	{
		return Capture.CaptureComponent->TextureTarget;
	}

	TObjectPtr<UTextureRenderTarget2D>& RenderTargetOf(AKyro360CamCapture& Capture)
	{
		return Capture.CaptureComponent->TextureTarget;
	}

	TObjectPtr<UTextureRenderTarget2D>& RenderTargetOf(AKyroViewportCapture& Capture)
	{
		return Capture.RenderTarget;
	}

	/** A new capture actor at the origin rendering into RenderTarget; null if the world refuses it. */
	template <typename CaptureType>
	AActor* SpawnCaptureActor(UWorld* World, UTextureRenderTarget2D* RenderTarget)
	{
		CaptureType* Capture = SpawnAtOrigin<CaptureType>(World);
		if (Capture)
		{
			RenderTargetOf(*Capture) = RenderTarget;
		}
		return Capture;
	}

	/** The render target of a capture actor known to be of this class. */
	template <typename CaptureType>
	UTextureRenderTarget2D* GetCaptureRenderTarget(AActor* CaptureActor)
	{
		return RenderTargetOf(*Cast<CaptureType>(CaptureActor)).Get();
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

	/** Appends the entry to the manager's senders and dirties the level; false without a manager. */
	template <typename ManagerType, typename EntryType>
	bool AddSenderEntry(ManagerType* Manager, const EntryType& Entry)
	{
		if (!Manager)
		{
			return false;
		}
		Manager->Senders.Add(Entry);
		Manager->GetWorld()->MarkPackageDirty();
		ULevel::LevelDirtiedEvent.Broadcast();
		return true;
	}

	/** Spawns a media output or virtual webcam actor at the origin, showing the render target; false if the world refuses it. */
	template <typename OutputType>
	bool CreateOutputActor(UTextureRenderTarget2D* RenderTarget)
	{
		OutputType* Output = SpawnAtOrigin<OutputType>(GetOutputWorld());
		if (!Output)
		{
			return false;
		}
		Output->RenderTarget = RenderTarget;
		GEditor->RedrawAllViewports(true);
		Output->GetWorld()->MarkPackageDirty();
		ULevel::LevelDirtiedEvent.Broadcast();
		return true;
	}

	/** The actors of the level viewports' worlds, where a create spawns its actors. */
	TArray<AActor*> GetLevelActors()
	{
		TArray<UWorld*> Worlds;
		for (FLevelEditorViewportClient* Client : GEditor->GetLevelViewportClients())
		{
			Worlds.AddUnique(Client->GetWorld());
		}
		TArray<AActor*> Actors;
		for (UWorld* World : Worlds)
		{
			TArray<AActor*> Found;
			UGameplayStatics::GetAllActorsOfClass(World, AActor::StaticClass(), Found);
			Actors.Append(Found);
		}
		return Actors;
	}

	/** The assets in the wizard's folder, as the asset registry lists them. */
	TArray<FAssetData> GetWizardAssets()
	{
		TArray<FAssetData> Assets;
		FModuleManager::LoadModuleChecked<FAssetRegistryModule>(TEXT("AssetRegistry")).Get().GetAssetsByPath(FName(AssetPackagePath), Assets);
		return Assets;
	}

	/** The entry count of the level's first sender manager of a class, the one a create appends to. */
	template <typename ManagerType>
	class TSenderCount
	{
	public:
		TSenderCount()
		{
			TArray<AActor*> Found;
			UGameplayStatics::GetAllActorsOfClass(GetOutputWorld(), ManagerType::StaticClass(), Found);
			if (Found.Num() > 0)
			{
				Manager = Cast<ManagerType>(Found[0]);
				Num = Manager->Senders.Num();
			}
		}

		/** Drops the entries appended since. */
		void Trim() const
		{
			if (ManagerType* Existing = Manager.Get())
			{
				Existing->Senders.SetNum(Num);
			}
		}

	private:
		TWeakObjectPtr<ManagerType> Manager;
		int32 Num = 0;
	};

	/**
	 * What a create may change, noted before it starts. Cancelling the transaction drops the undo
	 * step but keeps the changes already made, so a failed create takes back its own: the actors it
	 * spawned, the sender entries it appended and the render target asset it made.
	 */
	class FCreateRollback
	{
	public:
		FCreateRollback()
			: Actors(GetLevelActors())
		{
			for (const FAssetData& Asset : GetWizardAssets())
			{
				AssetPackages.Add(Asset.PackageName);
			}
		}

		/** Destroys the actors spawned since and drops the sender entries appended since. */
		void RevertLevel() const
		{
			for (AActor* Actor : GetLevelActors())
			{
				if (!Actors.Contains(Actor))
				{
					GEditor->SelectActor(Actor, false, true);
					Actor->Destroy();
				}
			}
			SpoutSenders.Trim();
			NDISenders.Trim();
		}

		/** Deletes the assets made in the wizard's folder since. */
		void DeleteNewAssets() const
		{
			TArray<UObject*> NewAssets;
			for (const FAssetData& Asset : GetWizardAssets())
			{
				if (!AssetPackages.Contains(Asset.PackageName))
				{
					NewAssets.Add(Asset.GetAsset());
				}
			}
			if (NewAssets.Num() > 0)
			{
				ObjectTools::DeleteObjectsUnchecked(NewAssets);
			}
		}

	private:
		TArray<AActor*> Actors;
		TSenderCount<AKyroSpoutSenderManager> SpoutSenders;
		TSenderCount<AKyroNDISenderManager> NDISenders;
		TArray<FName> AssetPackages;
	};
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
	const LivestreamWizard::FCreateRollback Rollback;

	FString AssetName;
	AActor* Actor = CreateCaptureActor(AssetName);
	bool bCreated = Actor != nullptr;
	if (bCreated)
	{
		UTextureRenderTarget2D* RenderTarget = GetRenderTarget(Actor);
		// The ticked outputs in their order; the first that fails ends the create.
		if (SpoutCheckBox->IsChecked())
		{
			bCreated = CreateSpoutSender(RenderTarget, AssetName);
		}
		if (bCreated && NDICheckBox->IsChecked())
		{
			bCreated = CreateNDISender(RenderTarget, AssetName);
		}
		if (bCreated && MediaOutputCheckBox->IsChecked())
		{
			bCreated = CreateMediaOutput(RenderTarget);
		}
		if (bCreated && VirtualWebcamCheckBox->IsChecked())
		{
			bCreated = CreateVirtualCam(RenderTarget);
		}
	}
	if (!bCreated)
	{
		Rollback.RevertLevel();
		Transaction.Cancel();
		// Last, once no undo step refers to the asset any more.
		Rollback.DeleteNewAssets();
	}
	return bCreated;
}

AActor* SLivestreamWizard::CreateCaptureActor(FString& OutAssetName) const
{
	using namespace LivestreamWizard;

	FLevelEditorViewportClient* Client = FindActiveLevelViewportClient();
	const FString BasePackageName = FString(AssetFolder) + StreamNameTextBox->GetText().ToString();
	if (!Client || !CanNameUniquely(BasePackageName))
	{
		return nullptr;
	}
	UTextureRenderTarget2D* RenderTarget = CreateRenderTarget(BasePackageName, OutAssetName);
	if (!RenderTarget)
	{
		return nullptr;
	}

	UWorld* World = Client->GetWorld();
	AActor* Actor = nullptr;
	if (IsCaptureTypeSelected(CineCamOption))
	{
		Actor = SpawnCaptureActor<AKyroCineCamCapture>(World, RenderTarget);
	}
	else if (IsCaptureTypeSelected(ThreeSixtyCamOption))
	{
		Actor = SpawnCaptureActor<AKyro360CamCapture>(World, RenderTarget);
	}
	else
	{
		Actor = SpawnCaptureActor<AKyroViewportCapture>(World, RenderTarget);
	}
	if (!Actor)
	{
		return nullptr;
	}
	PlaceAndSelect(Actor, *Client);
	return Actor;
}

UTextureRenderTarget2D* SLivestreamWizard::GetRenderTarget(AActor* CaptureActor) const
{
	using namespace LivestreamWizard;

	// Called with the actor CreateCaptureActor has just made for this selection, so the casts hold.
	if (IsCaptureTypeSelected(CineCamOption))
	{
		return GetCaptureRenderTarget<AKyroCineCamCapture>(CaptureActor);
	}
	if (IsCaptureTypeSelected(ThreeSixtyCamOption))
	{
		return GetCaptureRenderTarget<AKyro360CamCapture>(CaptureActor);
	}
	return GetCaptureRenderTarget<AKyroViewportCapture>(CaptureActor);
}

bool SLivestreamWizard::CreateSpoutSender(UTextureRenderTarget2D* RenderTarget, FString Name) const
{
	AKyroSpoutSenderManager* Manager = FindOrCreateSpoutSenderManager();
	return LivestreamWizard::AddSenderEntry(Manager, LivestreamWizard::MakeSenderEntry<FKyroSpoutSenderInterface>(RenderTarget, Name));
}

bool SLivestreamWizard::CreateNDISender(UTextureRenderTarget2D* RenderTarget, FString Name) const
{
	AKyroNDISenderManager* Manager = FindOrCreateNDISenderManager();
	FKyroNDISenderInterface Entry = LivestreamWizard::MakeSenderEntry<FKyroNDISenderInterface>(RenderTarget, Name);
	// The NDI entry's second flag, next to the enabled one.
	Entry.bActive = true;
	return LivestreamWizard::AddSenderEntry(Manager, Entry);
}

bool SLivestreamWizard::CreateMediaOutput(UTextureRenderTarget2D* RenderTarget) const
{
	return LivestreamWizard::CreateOutputActor<AKyroMediaOutput>(RenderTarget);
}

bool SLivestreamWizard::CreateVirtualCam(UTextureRenderTarget2D* RenderTarget) const
{
	return LivestreamWizard::CreateOutputActor<AKyroVirtualWebcamOutput>(RenderTarget);
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
