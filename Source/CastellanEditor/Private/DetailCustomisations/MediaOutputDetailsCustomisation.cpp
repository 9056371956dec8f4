// Copyright Nimbrel. All Rights Reserved.

#include "DetailCustomisations/MediaOutputDetailsCustomisation.h"

#include "CastellanModule.h"
#include "DetailCategoryBuilder.h"
#include "DetailLayoutBuilder.h"
#include "DetailWidgetRow.h"
#include "GameFramework/Actor.h"
#include "GameProjectGenerationModule.h"
#include "IDetailGroup.h"
#include "IDocumentation.h"
#include "Interfaces/IProjectManager.h"
#include "KyroMediaOutput.h"
#include "Misc/MessageDialog.h"
#include "Misc/Paths.h"
#include "Misc/Timespan.h"
#include "PropertyHandle.h"
#include "ScopedTransaction.h"
#include "Styling/CoreStyle.h"
#include "Templates/Casts.h"
#include "UObject/Script.h"
#include "Widgets/Input/SButton.h"
#include "Widgets/Layout/SWrapBox.h"
#include "Widgets/SToolTip.h"
#include "Widgets/Text/STextBlock.h"

#define LOCTEXT_NAMESPACE "MediaOutputDetailsCustomisation"

FMediaOutputDetailsCustomisation::FRowBuilder::FRowBuilder(FName InName, const FText& InLabel)
	: Name(InName)
	, WrapBox(SNew(SWrapBox).UseAllottedSize(true))
{
	// Kept with the row although nothing reads it back: rows show only their widgets.
	if (!InLabel.IsEmpty())
	{
		Label.AppendLine(InLabel);
	}
}

void FMediaOutputDetailsCustomisation::FRowBuilder::AddWidget(const TSharedRef<SWidget>& Widget)
{
	// clang-format off
	WrapBox->AddSlot()
	.Padding(2.0f)
	[
		Widget
	];
	// clang-format on
}

TSharedRef<IDetailCustomization> FMediaOutputDetailsCustomisation::MakeInstance()
{
	return MakeShareable(new FMediaOutputDetailsCustomisation);
}

void FMediaOutputDetailsCustomisation::CustomizeDetails(IDetailLayoutBuilder& DetailBuilder)
{
	HasStartedProperty = DetailBuilder.GetProperty(TEXT("HasStarted"), AKyroMediaOutput::StaticClass());
	check(HasStartedProperty->IsValidHandle());
	DetailBuilder.HideProperty(HasStartedProperty);

	DurationMsProperty = DetailBuilder.GetProperty(TEXT("DurationMs"), AKyroMediaOutput::StaticClass());
	check(DurationMsProperty->IsValidHandle());
	DetailBuilder.HideProperty(DurationMsProperty);

	const TSharedRef<SToolTip> HardwareEncodersToolTip = IDocumentation::Get()->CreateToolTip(
		LOCTEXT("HardwareEncodersTooltip", "Enable the 'HardwareEncoders' module to benefit from an FPS increase on NVidia graphics cards. \nWARNING: distributing to users with AMD cards may cause a crash."),
		nullptr,
		TEXT("Shared/Hardware"),
		TEXT("HardwareEncoders"));

	IDetailCategoryBuilder& Category = DetailBuilder.EditCategory(TEXT("Media Output"), FText::GetEmpty(), ECategoryPriority::Default);
	IDetailGroup& ControlsGroup = Category.AddGroup(TEXT("Controls"), FText::FromString(TEXT("Controls")), false, true);

	TArray<FRowBuilder> Rows;

	// The runtime answers true when the plugin need not be offered.
	if (!FCastellanModule::SuggestLoadingHardwareEncodersPlugin())
	{
		FRowBuilder& HardwareEncodersRow = Rows.Emplace_GetRef(TEXT("Media Output"), FText::GetEmpty());
		// clang-format off
		HardwareEncodersRow.AddWidget(
			SNew(STextBlock)
			.Text(FText::FromString(TEXT("Enable the 'HardwareEncoders' plugin for greater FPS")))
			.Font(FCoreStyle::GetDefaultFontStyle("Italic", 9))
			.ColorAndOpacity(FLinearColor::Yellow)
			.Visibility(this, &FMediaOutputDetailsCustomisation::GetHardwareEncodersHintVisibility));
		HardwareEncodersRow.AddWidget(
			SNew(SButton)
			.ToolTip(HardwareEncodersToolTip)
			.Text(this, &FMediaOutputDetailsCustomisation::GetHardwareEncodersButtonText)
			.OnClicked(this, &FMediaOutputDetailsCustomisation::ClickEnableHardwareEncoders));
		// clang-format on
	}

	// The label says milliseconds although a time span is shown; it is meant that way.
	FRowBuilder& DurationRow = Rows.Emplace_GetRef(TEXT("Controls"), FText::FromString(TEXT("Output Duration in Milliseconds")));
	DurationRow.AddWidget(SNew(STextBlock).Text(this, &FMediaOutputDetailsCustomisation::GetDurationText));

	HideApiOptionsProperty = DetailBuilder.GetProperty(TEXT("bHideAPIOptions"), AKyroMediaOutput::StaticClass());
	check(HideApiOptionsProperty->IsValidHandle());
	DetailBuilder.HideProperty(HideApiOptionsProperty);

	TArray<TWeakObjectPtr<UObject>> ObjectsBeingCustomized;
	DetailBuilder.GetObjectsBeingCustomized(ObjectsBeingCustomized);
	for (const TWeakObjectPtr<UObject>& Object : ObjectsBeingCustomized)
	{
		MediaOutput = CastChecked<AKyroMediaOutput>(Object);
		if (MediaOutput.IsValid())
		{
			break;
		}
	}

	FRowBuilder& ControlRow = Rows.Emplace_GetRef(TEXT("Controls"), FText::FromString(TEXT("Control your stream")));
	// clang-format off
	ControlRow.AddWidget(
		SNew(SButton)
		.Text(FText::FromString(TEXT("Start")))
		.IsEnabled(this, &FMediaOutputDetailsCustomisation::IsStartEnabled)
		.OnClicked(this, &FMediaOutputDetailsCustomisation::ClickStart, MediaOutput));
	ControlRow.AddWidget(
		SNew(SButton)
		.Text(FText::FromString(TEXT("Stop")))
		.IsEnabled(this, &FMediaOutputDetailsCustomisation::IsStopEnabled)
		.OnClicked(this, &FMediaOutputDetailsCustomisation::ClickStop, MediaOutput));
	// clang-format on

	for (const FRowBuilder& Row : Rows)
	{
		// clang-format off
		ControlsGroup.AddWidgetRow()
		[
			Row.WrapBox.ToSharedRef()
		];
		// clang-format on
	}
}

FReply FMediaOutputDetailsCustomisation::ClickStart(TWeakObjectPtr<AKyroMediaOutput> MediaOutputPtr)
{
	if (MediaOutputPtr.IsValid())
	{
		FScopedTransaction Transaction(LOCTEXT("ClickStart", "ExecuteCallInEditorMethod"));
		FEditorScriptExecutionGuard ScriptGuard;
		MediaOutputPtr->Start();
	}
	else
	{
		UE_LOG(LogActor, Warning, TEXT("Unable to call start on AKyroMediaOutput"));
	}
	return FReply::Handled();
}

FReply FMediaOutputDetailsCustomisation::ClickStop(TWeakObjectPtr<AKyroMediaOutput> MediaOutputPtr)
{
	if (MediaOutputPtr.IsValid())
	{
		FScopedTransaction Transaction(LOCTEXT("ClickStop", "ExecuteCallInEditorMethod"));
		FEditorScriptExecutionGuard ScriptGuard;
		MediaOutputPtr->Stop();
	}
	else
	{
		UE_LOG(LogActor, Warning, TEXT("Unable to call Stop on AKyroMediaOutput"));
	}
	return FReply::Handled();
}

FReply FMediaOutputDetailsCustomisation::ClickEnableHardwareEncoders()
{
	FText FailReason;
	bool bSuccess = IProjectManager::Get().SetPluginEnabled(TEXT("HardwareEncoders"), true, FailReason);
	if (bSuccess && IProjectManager::Get().IsCurrentProjectDirty())
	{
		FGameProjectGenerationModule::Get().TryMakeProjectFileWriteable(FPaths::GetProjectFilePath());
		bSuccess = IProjectManager::Get().SaveCurrentProjectToDisk(FailReason);
	}

	if (!bSuccess)
	{
		FMessageDialog::Open(EAppMsgType::Ok, FailReason);
	}

	// Set even after a failure, so the button asks for a restart instead of offering the plugin again.
	FCastellanModule::SetHardwareEncodersPendingRestart();
	return FReply::Handled();
}

bool FMediaOutputDetailsCustomisation::ReadHasStarted() const
{
	bool bHasStarted = false;
	HasStartedProperty->GetValue(bHasStarted);
	return bHasStarted;
}

bool FMediaOutputDetailsCustomisation::IsStartEnabled() const
{
	return !ReadHasStarted();
}

bool FMediaOutputDetailsCustomisation::IsStopEnabled() const
{
	return ReadHasStarted();
}

FText FMediaOutputDetailsCustomisation::GetDurationText() const
{
	uint64 DurationMs = 0;
	DurationMsProperty->GetValue(DurationMs);
	return FText::FromString(FTimespan::FromMilliseconds((double)DurationMs).ToString());
}

EVisibility FMediaOutputDetailsCustomisation::GetHardwareEncodersHintVisibility() const
{
	return FCastellanModule::IsHardwareEncodersPluginPendingRestart() ? EVisibility::Collapsed : EVisibility::Visible;
}

FText FMediaOutputDetailsCustomisation::GetHardwareEncodersButtonText() const
{
	return FCastellanModule::IsHardwareEncodersPluginPendingRestart() ? FText::FromString(TEXT("Restart required to take effect...")) : FText::FromString(TEXT("Enable 'HardwareEncoders' plugin"));
}

#undef LOCTEXT_NAMESPACE
