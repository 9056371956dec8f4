// Copyright Nimbrel. All Rights Reserved.

#pragma once

#include "CoreMinimal.h"
#include "IDetailCustomization.h"
#include "Input/Reply.h"
#include "Layout/Visibility.h"
#include "UObject/WeakObjectPtr.h"
#include "UObject/WeakObjectPtrTemplates.h"

class AKyroMediaOutput;
class IPropertyHandle;
class SWidget;
class SWrapBox;

/** Replaces a media output's state properties with a control panel: hardware-encoder offer, duration, Start and Stop. */
class FMediaOutputDetailsCustomisation : public IDetailCustomization
{
public:
	static TSharedRef<IDetailCustomization> MakeInstance();

	using IDetailCustomization::CustomizeDetails;
	virtual void CustomizeDetails(IDetailLayoutBuilder& DetailBuilder) override;

	FReply ClickStart(TWeakObjectPtr<AKyroMediaOutput> MediaOutputPtr);
	FReply ClickStop(TWeakObjectPtr<AKyroMediaOutput> MediaOutputPtr);

private:
	/** One custom row: its widgets side by side in a wrap box, and a label that only the builder keeps. */
	struct FRowBuilder
	{
		FRowBuilder(FName InName, const FText& InLabel);

		void AddWidget(const TSharedRef<SWidget>& Widget);

		FName Name;
		TSharedPtr<SWrapBox> WrapBox;
		FTextBuilder Label;
	};

	FReply ClickEnableHardwareEncoders();

	bool ReadHasStarted() const;
	bool IsStartEnabled() const;
	bool IsStopEnabled() const;
	FText GetDurationText() const;
	EVisibility GetHardwareEncodersHintVisibility() const;
	FText GetHardwareEncodersButtonText() const;

	TSharedPtr<IPropertyHandle> HasStartedProperty;
	TSharedPtr<IPropertyHandle> DurationMsProperty;
	TSharedPtr<IPropertyHandle> HideApiOptionsProperty;
	TWeakObjectPtr<AKyroMediaOutput> MediaOutput;
};
