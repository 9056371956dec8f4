// Copyright Nimbrel. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Input/Reply.h"
#include "Layout/Visibility.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

class AActor;
class AKyroMediaOutput;
class AKyroNDISenderManager;
class AKyroSpoutSenderManager;
class AKyroVirtualWebcamOutput;
class SCheckBox;
class SEditableTextBox;
class STextBlock;
class SWidget;
class UTextureRenderTarget2D;
class UWorld;
template <typename OptionType>
class SComboBox;

/**
 * The Livestream Wizard: choose a capture type, the outputs and a name, then Create builds the
 * render target, the capture actor and the outputs in the open level.
 */
class SLivestreamWizard : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SLivestreamWizard)
	{
	}
	SLATE_END_ARGS()

	SLivestreamWizard();

	void Construct(const FArguments& InArgs);

	virtual FReply OnKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;

private:
	/** An output the user may tick: its check box and caption. */
	struct FOutputOption
	{
		TSharedPtr<SCheckBox> SLivestreamWizard::*CheckBox;
		const TCHAR* Caption;
	};

	/** The actors the ticked outputs go to: sender managers found or spawned, and new output actors. */
	struct FOutputActors
	{
		AKyroSpoutSenderManager* SpoutSenderManager = nullptr;
		AKyroNDISenderManager* NDISenderManager = nullptr;
		AKyroMediaOutput* MediaOutput = nullptr;
		AKyroVirtualWebcamOutput* VirtualWebcamOutput = nullptr;
	};

	/** The outputs in the order they are shown and always tested. */
	static const FOutputOption OutputOptions[4];

	TSharedRef<SWidget> MakeHeader() const;
	TSharedRef<SWidget> MakeCreatorPage();
	TSharedRef<SWidget> MakeCaptureTypeStep();
	TSharedRef<SWidget> MakeOutputStep();
	TSharedRef<SWidget> MakeNameStep();
	TSharedRef<SWidget> MakeDonePage();

	FText GetCameraTypeComboBoxSelectedText() const;
	TSharedRef<SWidget> MakeCameraTypeWidget(TSharedPtr<FString> Item) const;
	EVisibility GetCreatorPageVisibility() const;
	EVisibility GetDonePageVisibility() const;
	bool GetCreateButtonEnabled() const;

	/** Checks the inputs and rewrites both warning lines; true when a setup may be created. */
	bool CanCreateSetup() const;
	/** Builds the whole setup as one undoable step; a create that fails leaves nothing behind. */
	bool CreateSetup() const;
	/**
	 * Spawns the capture actor and the outputs' actors, then creates the render target and connects
	 * them. OutSpawnedActors gets every actor spawned, also when a later step fails.
	 */
	bool BuildSetup(TArray<AActor*>& OutSpawnedActors) const;
	/** Spawns the actor of the selected capture type at the origin; null if the world refuses it. */
	AActor* SpawnCaptureActor(UWorld* World, TArray<AActor*>& OutSpawnedActors) const;
	/** Points the capture actor, spawned for the selected capture type, at the render target. */
	void SetCaptureRenderTarget(AActor* CaptureActor, UTextureRenderTarget2D* RenderTarget) const;
	/** Finds or spawns what each ticked output needs; false if a spawn is refused. */
	bool SpawnOutputActors(FOutputActors& OutOutputs, TArray<AActor*>& OutSpawnedActors) const;
	/** Adds a sender entry to each manager and shows the render target on each output actor. */
	static void ConnectOutputs(const FOutputActors& Outputs, UTextureRenderTarget2D* RenderTarget, const FString& AssetName);
	/** Whether the capture type selected in the combo is Option (ignoring case). */
	bool IsCaptureTypeSelected(const FString& Option) const;

	FReply OnCreateButtonClicked();
	FReply OnRestartButtonClicked();

	bool bIsCreatorPage;
	TSharedPtr<STextBlock> StreamNameWarning;
	TSharedPtr<STextBlock> OutputTypeWarning;
	TSharedPtr<STextBlock> DoneText;
	TSharedPtr<STextBlock> DoneButtonText;
	TSharedPtr<SEditableTextBox> StreamNameTextBox;
	TSharedPtr<SComboBox<TSharedPtr<FString>>> CameraTypeComboBox;
	TArray<TSharedPtr<FString>> CameraTypeOptions;
	TSharedPtr<SCheckBox> SpoutCheckBox;
	TSharedPtr<SCheckBox> NDICheckBox;
	TSharedPtr<SCheckBox> MediaOutputCheckBox;
	TSharedPtr<SCheckBox> VirtualWebcamCheckBox;
	FString CineCamOption;
	FString ThreeSixtyCamOption;
	FString ViewportCaptureOption;
};
