#include "SLivestreamWizard.h"

#include "CastellanEditorStyle.h"
#include "Editor.h"
#include "KyroTelemetry.h"
#include "Styling/CoreStyle.h"
#include "Styling/ISlateStyle.h"
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

	const FSlateFontInfo LabelFont = FCoreStyle::GetDefaultFontStyle("Regular", 10);
	const FSlateFontInfo WarningFont = FCoreStyle::GetDefaultFontStyle("Italic", 8);

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
								SNew(STextBlock)
								.Text(LOCTEXT("CameraType_Label", "1. Select Capture Type:"))
								.Font(LabelFont)
								.ColorAndOpacity(LabelColour)
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
								SNew(STextBlock)
								.Font(WarningFont)
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
								SNew(STextBlock)
								.Text(LOCTEXT("OutputType_Label", "2. Select Output Type:"))
								.Font(LabelFont)
								.ColorAndOpacity(LabelColour)
							]
							+ SVerticalBox::Slot()
							.AutoHeight()
							.Padding(ItemPadding)
							[
								SAssignNew(SpoutCheckBox, SCheckBox)
								[
									SNew(STextBlock)
									.Text(FText::FromString(TEXT("Spout")))
								]
							]
							+ SVerticalBox::Slot()
							.AutoHeight()
							.Padding(ItemPadding)
							[
								SAssignNew(NDICheckBox, SCheckBox)
								[
									SNew(STextBlock)
									.Text(FText::FromString(TEXT("NDI")))
								]
							]
							+ SVerticalBox::Slot()
							.AutoHeight()
							.Padding(ItemPadding)
							[
								SAssignNew(MediaOutputCheckBox, SCheckBox)
								[
									SNew(STextBlock)
									.Text(FText::FromString(TEXT("Media Output (RTMP, SRT, MP4 etc.)")))
								]
							]
							+ SVerticalBox::Slot()
							.AutoHeight()
							.Padding(ItemPadding)
							[
								SAssignNew(VirtualWebcamCheckBox, SCheckBox)
								[
									SNew(STextBlock)
									.Text(FText::FromString(TEXT("Virtual Webcam")))
								]
							]
							+ SVerticalBox::Slot()
							.AutoHeight()
							[
								SAssignNew(OutputTypeWarning, STextBlock)
								.Text(LOCTEXT("OutputType_Warning", ""))
								.Font(WarningFont)
								.ColorAndOpacity(FLinearColor::Red)
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
								SNew(STextBlock)
								.Text(LOCTEXT("StreamName_Label", "3. Set Livestream Name:"))
								.Font(LabelFont)
								.ColorAndOpacity(LabelColour)
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
								SAssignNew(StreamNameWarning, STextBlock)
								.Text(LOCTEXT("StreamName_Warning", ""))
								.Font(WarningFont)
								.ColorAndOpacity(FLinearColor::Red)
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

FReply SLivestreamWizard::OnCreateButtonClicked()
{
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
	return SCompoundWidget::OnKeyDown(MyGeometry, InKeyEvent);
}

#undef LOCTEXT_NAMESPACE
