#pragma once

#include "CoreMinimal.h"
#include "Input/Reply.h"
#include "Layout/Visibility.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

class SCheckBox;
class SEditableTextBox;
class STextBlock;
class SWidget;
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
	FText GetCameraTypeComboBoxSelectedText() const;
	TSharedRef<SWidget> MakeCameraTypeWidget(TSharedPtr<FString> Item) const;
	EVisibility GetCreatorPageVisibility() const;
	EVisibility GetDonePageVisibility() const;
	bool GetCreateButtonEnabled() const;

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
