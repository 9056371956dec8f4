// Copyright Nimbrel. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "Input/Reply.h"
#include "Layout/Visibility.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

class AActor;
class AKyroNDISenderManager;
class AKyroSpoutSenderManager;
class SCheckBox;
class SEditableTextBox;
class STextBlock;
class SWidget;
class UTextureRenderTarget2D;
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
	/**
	 * Builds the render target, the capture actor and the ticked outputs as one undo step; false
	 * when any of them could not be made, and then nothing of the attempt is left.
	 */
	bool CreateSetup() const;
	/**
	 * Creates the render target and the capture actor rendering into it at the active viewport's
	 * camera, selected alone; OutAssetName gets the target's final name. Null on failure.
	 */
	AActor* CreateCaptureActor(FString& OutAssetName) const;
	/** The render target that CaptureActor, made for the current selection, renders into. */
	UTextureRenderTarget2D* GetRenderTarget(AActor* CaptureActor) const;
	/** Each adds its output for the render target; false when a spawn the output needs is refused. */
	bool CreateSpoutSender(UTextureRenderTarget2D* RenderTarget, FString Name) const;
	bool CreateNDISender(UTextureRenderTarget2D* RenderTarget, FString Name) const;
	bool CreateMediaOutput(UTextureRenderTarget2D* RenderTarget) const;
	bool CreateVirtualCam(UTextureRenderTarget2D* RenderTarget) const;
	/** The level's first sender manager of the class, or a new one when it has none; null if that spawn is refused. */
	AKyroSpoutSenderManager* FindOrCreateSpoutSenderManager() const;
	AKyroNDISenderManager* FindOrCreateNDISenderManager() const;
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
